#pragma once

#include <OpenSG/OSGGeometry.h>

#include <QVector2D>
#include <QVector3D>
#include <vector>

/// The primitives of a geometry as plain lists of vertices: three for a triangle, two for a line,
/// one for a point. Resolves primitive types, lengths and indices.
struct kavoTriangleSoup
{
    struct Vertex
    {
        QVector3D position;
        QVector3D normal;
        QVector2D texCoord;
    };

    std::vector<Vertex> triangles, lines, points;
    QVector3D min, max; ///< bounding box; zeros for an empty geometry

    static kavoTriangleSoup of(const osg::GeometryPtr &geometry);

    bool isEmpty() const { return triangles.empty() && lines.empty() && points.empty(); }
};
