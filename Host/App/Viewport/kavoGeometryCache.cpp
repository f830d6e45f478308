#include "Viewport/kavoGeometryCache.h"

#include "Scene/kavoChanges.h"
#include "Scene/kavoContainers.h"

#include <algorithm>
#include <kavoScenegraph.h>
#include <limits>

namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();

bool intersectsBox(
    const QVector3D &origin, const QVector3D &direction, const kavoTriangleSoup &soup)
{
    float enter = 0, leave = infinity;
    for (int axis = 0; axis < 3; ++axis) {
        const float toMin = (soup.min[axis] - origin[axis]) / direction[axis];
        const float toMax = (soup.max[axis] - origin[axis]) / direction[axis];
        enter = std::max(enter, std::min(toMin, toMax));
        leave = std::min(leave, std::max(toMin, toMax));
    }
    return !(enter > leave); // true for NaN, which a ray within a side of the box yields
}

/// The distance along the ray to the triangle, infinity if the ray misses it (Moeller and
/// Trumbore).
float intersectTriangle(
    const QVector3D &origin, const QVector3D &direction, const kavoTriangleSoup::Vertex *corner)
{
    const QVector3D a = corner[1].position - corner[0].position;
    const QVector3D b = corner[2].position - corner[0].position;
    const QVector3D p = QVector3D::crossProduct(direction, b);
    const float det = QVector3D::dotProduct(a, p);
    const QVector3D s = origin - corner[0].position;
    const float u = QVector3D::dotProduct(s, p) / det;
    const QVector3D q = QVector3D::crossProduct(s, a);
    const float v = QVector3D::dotProduct(direction, q) / det;
    const float distance = QVector3D::dotProduct(b, q) / det;
    return det != 0 && u >= 0 && v >= 0 && u + v <= 1 && distance > 0 ? distance : infinity;
}

/// The distance along the ray to the nearest triangle of a geometry. The ray is transformed to
/// local space without normalization, so distances are the same in both spaces.
float intersect(const QVector3D &origin, const QVector3D &direction, const kavoTriangleSoup &soup)
{
    float nearest = infinity;
    if (!intersectsBox(origin, direction, soup))
        return nearest;
    for (std::size_t i = 0; i + 2 < soup.triangles.size(); i += 3)
        nearest = std::min(nearest, intersectTriangle(origin, direction, &soup.triangles[i]));
    return nearest;
}

} // namespace

const std::vector<kavoRenderItem> &kavoGeometryCache::items()
{
    if (!m_valid)
        m_items = kavoRenderItems::of(kavoScenegraph::getRoot());
    m_valid = true;
    return m_items;
}

const kavoTriangleSoup &kavoGeometryCache::soup(osg::UInt32 geometry)
{
    const auto found = m_soups.find(geometry);
    if (found != m_soups.end())
        return found->second;
    const auto container = osg::GeometryPtr::dcast(kavoContainers::find(geometry));
    return m_soups
        .emplace(geometry,
            container == osg::NullFC ? kavoTriangleSoup() : kavoTriangleSoup::of(container))
        .first->second;
}

QPair<QVector3D, float> kavoGeometryCache::bounds()
{
    QVector3D min(infinity, infinity, infinity), max = -min;
    for (const kavoRenderItem &item : items()) {
        const kavoTriangleSoup &shape = soup(item.geometry);
        for (int corner = 0; corner < 8 && !shape.isEmpty(); ++corner) {
            const QVector3D at
                = item.toWorld.map(QVector3D(corner & 1 ? shape.max.x() : shape.min.x(),
                    corner & 2 ? shape.max.y() : shape.min.y(),
                    corner & 4 ? shape.max.z() : shape.min.z()));
            for (int axis = 0; axis < 3; ++axis) {
                min[axis] = std::min(min[axis], at[axis]);
                max[axis] = std::max(max[axis], at[axis]);
            }
        }
    }
    if (min.x() > max.x())
        return { QVector3D(), 0.0f };
    return { (min + max) / 2, (max - min).length() / 2 };
}

osg::UInt32 kavoGeometryCache::pick(const QVector3D &origin, const QVector3D &direction)
{
    osg::UInt32 node = 0;
    float nearest = infinity;
    for (const kavoRenderItem &item : items()) {
        const QMatrix4x4 toLocal = item.toWorld.inverted();
        const float distance
            = intersect(toLocal.map(origin), toLocal.mapVector(direction), soup(item.geometry));
        if (distance < nearest) {
            nearest = distance;
            node = item.node;
        }
    }
    return node;
}

void kavoGeometryCache::invalidate(const kavoChanges &changes)
{
    m_valid = false;
    for (const osg::UInt32 id : changes.touched)
        m_soups.erase(id);
    for (const osg::UInt32 id : changes.destroyed)
        m_soups.erase(id);
}

void kavoGeometryCache::invalidate()
{
    m_valid = false;
    m_soups.clear();
}
