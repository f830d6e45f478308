#include "Viewport/kavoTriangleSoup.h"

#include <OpenSG/OSGGeoProperty.h>
#include <algorithm>
#include <qopengl.h>
#include <utility>

namespace {

using Vertex = kavoTriangleSoup::Vertex;

QVector3D toQt(const osg::Pnt3f &p)
{
    return QVector3D(p[0], p[1], p[2]);
}

QVector3D toQt(const osg::Vec3f &v)
{
    return QVector3D(v[0], v[1], v[2]);
}

QVector2D toQt(const osg::Vec2f &v)
{
    return QVector2D(v[0], v[1]);
}

/// Reads the vertices of a geometry in the order of its indices.
class CornerReader
{
public:
    explicit CornerReader(const osg::GeometryPtr &geometry)
        : m_geometry(geometry)
        , m_columns(std::max<osg::UInt32>(1, geometry->getMFIndexMapping()->getSize()))
    {
    }

    /// The number of vertices. The lengths of the primitives may ask for more.
    osg::UInt32 count() const
    {
        const osg::GeoIndicesPtr indices = m_geometry->getIndices();
        return indices == osg::NullFC ? size(m_geometry->getPositions())
                                      : size(indices) / m_columns;
    }

    Vertex corner(osg::UInt32 number) const
    {
        Vertex vertex;
        read(vertex.position, m_geometry->getPositions(), number, osg::Geometry::MapPosition);
        read(vertex.normal, m_geometry->getNormals(), number, osg::Geometry::MapNormal);
        read(vertex.texCoord, m_geometry->getTexCoords(), number, osg::Geometry::MapTexCoords);
        return vertex;
    }

private:
    template <class Property> static osg::UInt32 size(const Property &property)
    {
        return property == osg::NullFC ? 0 : property->getSize();
    }

    template <class Value, class Property>
    void read(Value &value, const Property &property, osg::UInt32 number, osg::UInt16 mapped) const
    {
        const osg::UInt32 at = index(number, mapped);
        if (at < size(property))
            value = toQt(property->getValue(at));
    }

    osg::UInt32 index(osg::UInt32 number, osg::UInt16 mapped) const
    {
        const osg::GeoIndicesPtr indices = m_geometry->getIndices();
        if (indices == osg::NullFC)
            return number;
        const osg::Int16 column = m_columns > 1 ? m_geometry->calcMappingIndex(mapped) : 0;
        const osg::UInt32 at = number * m_columns + osg::UInt32(column);
        return column >= 0 && at < indices->getSize() ? indices->getValue(at) : ~osg::UInt32(0);
    }

    osg::GeometryPtr m_geometry;
    osg::UInt32 m_columns;
};

void addTriangle(kavoTriangleSoup &soup, Vertex a, Vertex b, Vertex c)
{
    if (a.normal.isNull() || b.normal.isNull() || c.normal.isNull()) {
        const QVector3D flat = QVector3D::normal(a.position, b.position, c.position);
        a.normal = b.normal = c.normal = flat;
    }
    soup.triangles.insert(soup.triangles.end(), { a, b, c });
}

void addLine(kavoTriangleSoup &soup, const Vertex &a, const Vertex &b)
{
    soup.lines.insert(soup.lines.end(), { a, b });
}

/// Adds one or two triangles for every `step` vertices; the offsets are relative to the first.
void addTriangles(kavoTriangleSoup &soup, const std::vector<Vertex> &v, std::size_t step,
    std::initializer_list<std::size_t> offsets)
{
    const std::size_t reach = std::max(offsets);
    for (std::size_t i = 0; i + reach < v.size(); i += step)
        for (auto at = offsets.begin(); at != offsets.end(); at += 3)
            addTriangle(soup, v[i + at[0]], v[i + at[1]], v[i + at[2]]);
}

void addFan(kavoTriangleSoup &soup, const std::vector<Vertex> &v)
{
    for (std::size_t i = 1; i + 1 < v.size(); ++i)
        addTriangle(soup, v[0], v[i], v[i + 1]);
}

void addStrip(kavoTriangleSoup &soup, const std::vector<Vertex> &v)
{
    for (std::size_t i = 0; i + 2 < v.size(); ++i)
        addTriangle(soup, v[i + i % 2], v[i + 1 - i % 2], v[i + 2]);
}

void addLines(kavoTriangleSoup &soup, const std::vector<Vertex> &v, std::size_t step, bool close)
{
    for (std::size_t i = 0; i + 1 < v.size(); i += step)
        addLine(soup, v[i], v[i + 1]);
    if (close && v.size() > 2)
        addLine(soup, v.back(), v.front());
}

void addPrimitive(kavoTriangleSoup &soup, osg::UInt8 type, const std::vector<Vertex> &corners)
{
    switch (type) {
    case GL_POINTS:
        soup.points.insert(soup.points.end(), corners.begin(), corners.end());
        return;
    case GL_LINES:
        return addLines(soup, corners, 2, false);
    case GL_LINE_LOOP:
        return addLines(soup, corners, 1, true);
    case GL_LINE_STRIP:
        return addLines(soup, corners, 1, false);
    case GL_TRIANGLES:
        return addTriangles(soup, corners, 3, { 0, 1, 2 });
    case GL_TRIANGLE_STRIP:
        return addStrip(soup, corners);
    case GL_QUADS:
        return addTriangles(soup, corners, 4, { 0, 1, 2, 0, 2, 3 });
    case GL_QUAD_STRIP:
        return addTriangles(soup, corners, 2, { 0, 1, 3, 0, 3, 2 });
    case GL_TRIANGLE_FAN:
    case GL_POLYGON:
        return addFan(soup, corners);
    }
}

void extend(kavoTriangleSoup &soup, const QVector3D &point)
{
    for (int axis = 0; axis < 3; ++axis) {
        soup.min[axis] = std::min(soup.min[axis], point[axis]);
        soup.max[axis] = std::max(soup.max[axis], point[axis]);
    }
}

void findBounds(kavoTriangleSoup &soup)
{
    bool isFirst = true;
    for (const auto *part : { &soup.triangles, &soup.lines, &soup.points }) {
        for (const Vertex &vertex : *part) {
            if (std::exchange(isFirst, false))
                soup.min = soup.max = vertex.position;
            extend(soup, vertex.position);
        }
    }
}

} // namespace

kavoTriangleSoup kavoTriangleSoup::of(const osg::GeometryPtr &geometry)
{
    kavoTriangleSoup soup;
    if (geometry->getPositions() == osg::NullFC || geometry->getTypes() == osg::NullFC
        || geometry->getLengths() == osg::NullFC)
        return soup;
    const CornerReader reader(geometry);
    const osg::UInt32 count
        = std::min(geometry->getTypes()->getSize(), geometry->getLengths()->getSize());
    osg::UInt32 number = 0;
    for (osg::UInt32 i = 0; i < count; ++i) {
        const osg::UInt32 left = reader.count() - number;
        std::vector<Vertex> corners(std::min(left, geometry->getLengths()->getValue(i)));
        for (Vertex &corner : corners)
            corner = reader.corner(number++);
        addPrimitive(soup, osg::UInt8(geometry->getTypes()->getValue(i)), corners);
    }
    findBounds(soup);
    return soup;
}
