#include "OSGTriangleBuilder.h"

#include <OpenSG/OSGSimpleGeometry.h>

OSG_BEGIN_NAMESPACE

TriangleBuilder::TriangleBuilder()
    : _positions(GeoPositions3f::create())
    , _normals(GeoNormals3f::create())
    , _texCoords(GeoTexCoords2f::create())
    , _indices(GeoIndicesUI32::create())
{
}

UInt32 TriangleBuilder::addVertex(const Vertex &vertex)
{
    _positions->push_back(vertex.position);
    _normals->push_back(vertex.normal);
    _texCoords->push_back(vertex.texCoord);
    return _positions->size() - 1;
}

void TriangleBuilder::addTriangle(UInt32 a, UInt32 b, UInt32 c)
{
    for (const UInt32 index : { a, b, c }) {
        _indices->push_back(index);
    }
}

void TriangleBuilder::addGrid(
    UInt32 columns, UInt32 rows, const std::function<Vertex(Real32 u, Real32 v)> &surface)
{
    const UInt32 first = _positions->size();
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

GeometryPtr TriangleBuilder::finish()
{
    constexpr UInt8 glTriangles = 4;
    const GeoPTypesUI8Ptr types = GeoPTypesUI8::create();
    types->push_back(glTriangles);
    const GeoPLengthsUI32Ptr lengths = GeoPLengthsUI32::create();
    lengths->push_back(_indices->size());

    const GeometryPtr geometry = Geometry::create();
    beginEditCP(geometry);
    geometry->setTypes(types);
    geometry->setLengths(lengths);
    geometry->setPositions(_positions);
    geometry->setNormals(_normals);
    geometry->setTexCoords(_texCoords);
    geometry->setIndices(_indices);
    geometry->setMaterial(getDefaultMaterial());
    endEditCP(geometry);
    return geometry;
}

OSG_END_NAMESPACE
