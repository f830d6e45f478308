#include "Scene/OSGTriangleBuilder.h"

#include <OpenSG/OSGSimpleGeometry.h>

OSG_BEGIN_NAMESPACE

UInt32 TriangleBuilder::addVertex(const Vertex &vertex)
{
    _vertices.push_back(vertex);
    return static_cast<UInt32>(_vertices.size() - 1);
}

void TriangleBuilder::addTriangle(UInt32 a, UInt32 b, UInt32 c)
{
    _indices.insert(_indices.end(), { a, b, c });
}

void TriangleBuilder::addGrid(
    UInt32 columns, UInt32 rows, const std::function<Vertex(Real32 u, Real32 v)> &surface)
{
    const UInt32 first = static_cast<UInt32>(_vertices.size());
    for (UInt32 row = 0; row <= rows; ++row) {
        for (UInt32 column = 0; column <= columns; ++column) {
            addVertex(surface(Real32(column) / columns, Real32(row) / rows));
        }
    }
    for (UInt32 row = 0; row < rows; ++row) {
        for (UInt32 column = 0; column < columns; ++column) {
            const UInt32 corner = first + row * (columns + 1) + column;
            const UInt32 above = corner + columns + 1;
            addTriangle(corner, corner + 1, above + 1);
            addTriangle(corner, above + 1, above);
        }
    }
}

GeometryPtr TriangleBuilder::finish() const
{
    const GeometryPtr geometry = Geometry::create();
    if (geometry) {
        beginEditCP(geometry);
        setVertices(*geometry);
        setTriangles(*geometry);
        geometry->setMaterial(getDefaultMaterial());
        endEditCP(geometry);
    }
    return geometry;
}

void TriangleBuilder::setVertices(Geometry &geometry) const
{
    const GeoPositions3fPtr positions = GeoPositions3f::create();
    const GeoNormals3fPtr normals = GeoNormals3f::create();
    const GeoTexCoords2fPtr texCoords = GeoTexCoords2f::create();
    for (const Vertex &vertex : _vertices) {
        positions->push_back(vertex.position);
        normals->push_back(vertex.normal);
        texCoords->push_back(vertex.texCoord);
    }
    geometry.setPositions(positions);
    geometry.setNormals(normals);
    geometry.setTexCoords(texCoords);
}

void TriangleBuilder::setTriangles(Geometry &geometry) const
{
    constexpr UInt8 glTriangles = 4;
    const GeoPTypesUI8Ptr types = GeoPTypesUI8::create();
    types->push_back(glTriangles);
    const GeoPLengthsUI32Ptr lengths = GeoPLengthsUI32::create();
    lengths->push_back(static_cast<UInt32>(_indices.size()));
    const GeoIndicesUI32Ptr indices = GeoIndicesUI32::create();
    indices->getField().setValues(_indices);
    geometry.setTypes(types);
    geometry.setLengths(lengths);
    geometry.setIndices(indices);
}

OSG_END_NAMESPACE
