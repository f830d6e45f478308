#pragma once

#include <OpenSG/OSGGeometry.h>

#include <functional>

OSG_BEGIN_NAMESPACE

/// Collects vertices and triangles and makes a geometry of them.
class TriangleBuilder
{
public:
    struct Vertex
    {
        Pnt3f position;
        Vec3f normal;
        Vec2f texCoord;
    };

    TriangleBuilder();

    /// The vertex's index.
    UInt32 addVertex(const Vertex &vertex);
    Pnt3f position(UInt32 index) const { return _positions->getValue(index); }
    /// Counter-clockwise as seen from the front.
    void addTriangle(UInt32 a, UInt32 b, UInt32 c);
    /// A surface over the unit square, seen from where u runs right and v up.
    void addGrid(
        UInt32 columns, UInt32 rows, const std::function<Vertex(Real32 u, Real32 v)> &surface);

    /// The geometry, with the shared default material.
    GeometryPtr finish();

private:
    GeoPositions3fPtr _positions;
    GeoNormals3fPtr _normals;
    GeoTexCoords2fPtr _texCoords;
    GeoIndicesUI32Ptr _indices;
};

OSG_END_NAMESPACE
