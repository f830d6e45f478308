#pragma once

#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGVector.h>

#include <assimp/types.h>

/// Converts values of Assimp to values of OpenSG.
namespace kavoAssimpTypes {

inline osg::Vec3f toVector(const aiVector3D &v)
{
    return osg::Vec3f(v.x, v.y, v.z);
}

inline osg::Pnt3f toPoint(const aiVector3D &v)
{
    return osg::Pnt3f(v.x, v.y, v.z);
}

inline osg::Color4f toColor(const aiColor4D &c)
{
    osg::Color4f color;
    color.setValuesRGBA(c.r, c.g, c.b, c.a);
    return color;
}

/// The result is opaque.
inline osg::Color4f toColor(const aiColor3D &c)
{
    return toColor(aiColor4D(c.r, c.g, c.b, 1));
}

inline osg::Matrix toMatrix(const aiMatrix4x4 &m)
{
    return osg::Matrix(m.a1, m.a2, m.a3, m.a4, m.b1, m.b2, m.b3, m.b4, m.c1, m.c2, m.c3, m.c4, m.d1,
        m.d2, m.d3, m.d4);
}

} // namespace kavoAssimpTypes
