#pragma once

#include <OpenSG/OSGGeometry.h>

#include <functional>
#include <vector>

OSG_BEGIN_NAMESPACE

/// Collects vertices and triangles and makes a geometry from them.
class TriangleBuilder
{
public:
    struct Vertex
    {
        Pnt3f position;
        Vec3f normal;
        Vec2f texCoord;
    };

    /// Returns the index of the vertex.
    UInt32 addVertex(const Vertex &vertex);
    Pnt3f position(UInt32 index) const { return _vertices[index].position; }
    /// The vertices are counter-clockwise, seen from the front.
    void addTriangle(UInt32 a, UInt32 b, UInt32 c);
    /// Adds a surface over the unit square. In front of it, u increases to the right and v upwards.
    void addGrid(
        UInt32 columns, UInt32 rows, const std::function<Vertex(Real32 u, Real32 v)> &surface);

    /// Returns the geometry, with the shared default material. Returns null before osgInit.
    GeometryPtr finish() const;

private:
    void setVertices(Geometry &geometry) const;
    void setTriangles(Geometry &geometry) const;

    std::vector<Vertex> _vertices;
    std::vector<UInt32> _indices;
};

OSG_END_NAMESPACE
