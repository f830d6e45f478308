#pragma once

#include <OpenSG/OSGGeometry.h>

#include <QVector2D>
#include <QVector3D>
#include <vector>

/// The primitives of a geometry as plain corners, whatever primitive types, lengths and indices it
/// is made of: three corners a triangle, two a line, one a point.
struct kavoTriangleSoup
{
    struct Vertex
    {
        QVector3D position;
        QVector3D normal;
        QVector2D texCoord;
    };

    std::vector<Vertex> triangles, lines, points;
    QVector3D min, max; ///< bounding box; all zeros where there is nothing

    static kavoTriangleSoup of(const osg::GeometryPtr &geometry);

    bool isEmpty() const { return triangles.empty() && lines.empty() && points.empty(); }
};
