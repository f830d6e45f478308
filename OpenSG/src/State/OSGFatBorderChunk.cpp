#include <OpenSG/OSGFatBorderChunk.h>

OSG_BEGIN_NAMESPACE

namespace {

const Char8 *const borderProgram = R"(!!ARBvp1.0
PARAM	mvp[]	= { state.matrix.mvp };
PARAM	mv[]	= { state.matrix.modelview[0] };
PARAM	m_one	= { -1.0, -1.0, -1.0, 0.0 };
PARAM	small	= { 0.00001, 0.00001, 0.00001, 0.0 };
TEMP	temp, temp2, temp3;
MOV		result.texcoord[0], vertex.texcoord[1];
DP3		temp2.x, mv[0], vertex.normal;
DP3		temp2.y, mv[1], vertex.normal;
DP3		temp2.z, mv[2], vertex.normal;
DP3		temp, temp2, temp2;
RSQ		temp, temp.x;
MUL		temp2, temp, temp2;
DP3		temp.x, state.light[0].position, temp2;
DP3		temp.y, state.light[0].half, temp2;
MOV		temp.w, state.material.shininess.x;
LIT		temp, temp;
MAD		temp3, temp.y, state.lightprod[0].front.diffuse, state.lightprod[0].front.ambient;
ADD		temp3, temp3, state.material.emission;
MAD		temp3, temp.z, state.lightprod[0].front.specular, temp3;
MUL		temp2, temp2, m_one;
DP3		temp.x, state.light[0].position, temp2;
DP3		temp.y, state.light[0].half, temp2;
MOV		temp.w, state.material.shininess.x;
LIT		temp, temp;
MAD		temp3, temp.y, state.lightprod[0].back.diffuse, temp3;
MAD		result.color, temp.z, state.lightprod[0].back.specular, temp3;
MUL		temp2, m_one, mv[2];
DP3		temp, temp2, temp2;
RSQ		temp, temp.x;
MUL		temp2, temp, temp2;
XPD		temp, temp2, vertex.texcoord[0];
DP3		temp3, temp, temp;
ADD		temp3, temp3, small;
RSQ		temp3, temp3.x;
MUL		temp, temp3, temp;
DP3		temp3, vertex.texcoord[0], vertex.texcoord[0];
MUL		temp3, {1,1,1,0}, temp3.x;
MAD		temp, temp, temp3, vertex.position;
MAD		temp, temp2, temp3, temp;
DP4		result.position.x, mvp[0], temp;
DP4		result.position.y, mvp[1], temp;
DP4		result.position.z, mvp[2], temp;
DP4		result.position.w, mvp[3], temp;
END
)";

}

FatBorderChunk::FatBorderChunk()
{
    setProgram(borderProgram);
}

OSG_END_NAMESPACE
