#include <OpenSG/OSGSimpleGeometry.h>

#include "Scene/OSGTriangleBuilder.h"

#include <algorithm>
#include <cmath>
#include <map>

OSG_BEGIN_NAMESPACE

namespace {

typedef TriangleBuilder::Vertex Vertex;

constexpr UInt32 leastSides = 3;
constexpr UInt16 maxSphereDepth = 8;

// Adds a face of a box. `normal` points outwards. `right` and `up` are the half sides of the face.
void addFace(TriangleBuilder &builder, const Vec3f &normal, const Vec3f &right, const Vec3f &up,
    UInt32 columns, UInt32 rows)
{
    Vec3f direction = normal;
    direction.normalize();
    builder.addGrid(columns, rows, [&](Real32 u, Real32 v) {
        const Vec3f offset = normal + right * (2.f * u - 1.f) + up * (2.f * v - 1.f);
        return Vertex { offset.addToZero(), direction, Vec2f(u, v) };
    });
}

// Adds a horizontal disc that faces up or down.
void addDisc(TriangleBuilder &builder, Real32 height, Real32 radius, UInt32 sides, bool up)
{
    const Vec3f normal(0.f, up ? 1.f : -1.f, 0.f);
    const UInt32 middle = builder.addVertex({ Pnt3f(0.f, height, 0.f), normal, Vec2f(0.5f, 0.5f) });
    for (UInt32 i = 0; i <= sides; ++i) {
        const Real32 angle = 2.f * Pi * i / sides;
        const Real32 x = std::sin(angle);
        const Real32 z = std::cos(angle);
        builder.addVertex({ Pnt3f(radius * x, height, radius * z), normal,
            Vec2f(0.5f + 0.5f * x, 0.5f - 0.5f * z) });
    }
    for (UInt32 i = middle + 1; i <= middle + sides; ++i) {
        builder.addTriangle(middle, up ? i : i + 1, up ? i + 1 : i);
    }
}

// Adds the side of a cylinder or cone around the y axis.
void addMantle(TriangleBuilder &builder, Real32 height, Real32 bottom, Real32 top, UInt32 sides)
{
    builder.addGrid(sides, 1, [&](Real32 u, Real32 v) {
        const Real32 x = std::sin(2.f * Pi * u);
        const Real32 z = std::cos(2.f * Pi * u);
        const Real32 radius = bottom + (top - bottom) * v;
        Vec3f normal(height * x, bottom - top, height * z);
        normal.normalize();
        return Vertex { Pnt3f(radius * x, height * (v - 0.5f), radius * z), normal, Vec2f(u, v) };
    });
}

// Makes a sphere by dividing the faces of an icosahedron.
class SphereBuilder
{
public:
    explicit SphereBuilder(Real32 radius)
        : _radius(radius)
    {
    }

    GeometryPtr build(UInt16 depth)
    {
        const Real32 golden = (1.f + std::sqrt(5.f)) / 2.f;
        const Vec3f corners[]
            = { { -1.f, golden, 0.f }, { 1.f, golden, 0.f }, { -1.f, -golden, 0.f },
                  { 1.f, -golden, 0.f }, { 0.f, -1.f, golden }, { 0.f, 1.f, golden },
                  { 0.f, -1.f, -golden }, { 0.f, 1.f, -golden }, { golden, 0.f, -1.f },
                  { golden, 0.f, 1.f }, { -golden, 0.f, -1.f }, { -golden, 0.f, 1.f } };
        constexpr UInt32 faces[][3] = { { 0, 11, 5 }, { 0, 5, 1 }, { 0, 1, 7 }, { 0, 7, 10 },
            { 0, 10, 11 }, { 1, 5, 9 }, { 5, 11, 4 }, { 11, 10, 2 }, { 10, 7, 6 }, { 7, 1, 8 },
            { 3, 9, 4 }, { 3, 4, 2 }, { 3, 2, 6 }, { 3, 6, 8 }, { 3, 8, 9 }, { 4, 9, 5 },
            { 2, 4, 11 }, { 6, 2, 10 }, { 8, 6, 7 }, { 9, 8, 1 } };
        for (const Vec3f &corner : corners) {
            addVertex(corner);
        }
        for (const auto &face : faces) {
            divide(face[0], face[1], face[2], depth);
        }
        return _builder.finish();
    }

private:
    UInt32 addVertex(Vec3f direction)
    {
        direction.normalize();
        const Vec2f texCoord(0.5f + std::atan2(direction.x(), direction.z()) / (2.f * Pi),
            0.5f + std::asin(direction.y()) / Pi);
        return _builder.addVertex({ (direction * _radius).addToZero(), direction, texCoord });
    }

    UInt32 middle(UInt32 a, UInt32 b)
    {
        const auto edge = std::minmax(a, b);
        const auto known = _middles.find(edge);
        if (known != _middles.end()) {
            return known->second;
        }
        const UInt32 index
            = addVertex(_builder.position(a).subZero() + _builder.position(b).subZero());
        _middles.emplace(edge, index);
        return index;
    }

    void divide(UInt32 a, UInt32 b, UInt32 c, UInt16 depth)
    {
        if (depth == 0) {
            _builder.addTriangle(a, b, c);
            return;
        }
        const UInt32 ab = middle(a, b);
        const UInt32 bc = middle(b, c);
        const UInt32 ca = middle(c, a);
        divide(a, ab, ca, depth - 1);
        divide(ab, b, bc, depth - 1);
        divide(ca, bc, c, depth - 1);
        divide(ab, bc, ca, depth - 1);
    }

    Real32 _radius;
    TriangleBuilder _builder;
    std::map<std::pair<UInt32, UInt32>, UInt32> _middles;
};

SimpleMaterialPtr makeGreyMaterial()
{
    const SimpleMaterialPtr material = SimpleMaterial::create();
    if (material) {
        beginEditCP(material);
        material->setDiffuse(Color3f(0.7f, 0.7f, 0.7f));
        material->setAmbient(Color3f(0.2f, 0.2f, 0.2f));
        endEditCP(material);
    }
    return material;
}

} // namespace

SimpleMaterialPtr getDefaultMaterial()
{
    static SimpleMaterialPtr material;
    if (!material) {
        material = makeGreyMaterial();
        addRefCP(material);
    }
    return material;
}

GeometryPtr makePlaneGeo(Real32 xsize, Real32 ysize, UInt16 hor, UInt16 vert)
{
    TriangleBuilder builder;
    builder.addGrid(std::max<UInt32>(hor, 1), std::max<UInt32>(vert, 1), [&](Real32 u, Real32 v) {
        return Vertex { Pnt3f(xsize * (u - 0.5f), ysize * (v - 0.5f), 0.f), Vec3f(0.f, 0.f, 1.f),
            Vec2f(u, v) };
    });
    return builder.finish();
}

GeometryPtr makeBoxGeo(
    Real32 xsize, Real32 ysize, Real32 zsize, UInt16 hor, UInt16 vert, UInt16 depth)
{
    const Vec3f x(xsize / 2.f, 0.f, 0.f);
    const Vec3f y(0.f, ysize / 2.f, 0.f);
    const Vec3f z(0.f, 0.f, zsize / 2.f);
    const UInt32 nx = std::max<UInt32>(hor, 1);
    const UInt32 ny = std::max<UInt32>(vert, 1);
    const UInt32 nz = std::max<UInt32>(depth, 1);

    TriangleBuilder builder;
    addFace(builder, z, x, y, nx, ny);
    addFace(builder, -z, -x, y, nx, ny);
    addFace(builder, x, -z, y, nz, ny);
    addFace(builder, -x, z, y, nz, ny);
    addFace(builder, y, x, -z, nx, nz);
    addFace(builder, -y, x, z, nx, nz);
    return builder.finish();
}

GeometryPtr makeSphereGeo(UInt16 depth, Real32 radius)
{
    return SphereBuilder(radius).build(std::min(depth, maxSphereDepth));
}

GeometryPtr makeTorusGeo(Real32 innerRadius, Real32 outerRadius, UInt16 sides, UInt16 rings)
{
    TriangleBuilder builder;
    builder.addGrid(std::max<UInt32>(rings, leastSides), std::max<UInt32>(sides, leastSides),
        [&](Real32 u, Real32 v) {
            const Vec3f outwards(std::cos(2.f * Pi * u), std::sin(2.f * Pi * u), 0.f);
            const Vec3f normal
                = outwards * std::cos(2.f * Pi * v) + Vec3f(0.f, 0.f, std::sin(2.f * Pi * v));
            const Vec3f offset = outwards * outerRadius + normal * innerRadius;
            return Vertex { offset.addToZero(), normal, Vec2f(u, v) };
        });
    return builder.finish();
}

GeometryPtr makeCylinderGeo(
    Real32 height, Real32 radius, UInt16 sides, bool doSide, bool doTop, bool doBottom)
{
    const UInt32 n = std::max<UInt32>(sides, leastSides);
    TriangleBuilder builder;
    if (doSide) {
        addMantle(builder, height, radius, radius, n);
    }
    if (doTop) {
        addDisc(builder, height / 2.f, radius, n, true);
    }
    if (doBottom) {
        addDisc(builder, -height / 2.f, radius, n, false);
    }
    return builder.finish();
}

GeometryPtr makeConeGeo(Real32 height, Real32 botradius, UInt16 sides, bool doSide, bool doBottom)
{
    const UInt32 n = std::max<UInt32>(sides, leastSides);
    TriangleBuilder builder;
    if (doSide) {
        addMantle(builder, height, botradius, 0.f, n);
    }
    if (doBottom) {
        addDisc(builder, -height / 2.f, botradius, n, false);
    }
    return builder.finish();
}

NodePtr makePlane(Real32 xsize, Real32 ysize, UInt16 hor, UInt16 vert)
{
    return makeNodeFor(makePlaneGeo(xsize, ysize, hor, vert));
}

NodePtr makeBox(Real32 xsize, Real32 ysize, Real32 zsize, UInt16 hor, UInt16 vert, UInt16 depth)
{
    return makeNodeFor(makeBoxGeo(xsize, ysize, zsize, hor, vert, depth));
}

NodePtr makeSphere(UInt16 depth, Real32 radius)
{
    return makeNodeFor(makeSphereGeo(depth, radius));
}

NodePtr makeTorus(Real32 innerRadius, Real32 outerRadius, UInt16 sides, UInt16 rings)
{
    return makeNodeFor(makeTorusGeo(innerRadius, outerRadius, sides, rings));
}

NodePtr makeCylinder(
    Real32 height, Real32 radius, UInt16 sides, bool doSide, bool doTop, bool doBottom)
{
    return makeNodeFor(makeCylinderGeo(height, radius, sides, doSide, doTop, doBottom));
}

NodePtr makeCone(Real32 height, Real32 botradius, UInt16 sides, bool doSide, bool doBottom)
{
    return makeNodeFor(makeConeGeo(height, botradius, sides, doSide, doBottom));
}

OSG_END_NAMESPACE
