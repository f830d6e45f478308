#pragma once

#include "Viewport/kavoRenderItems.h"
#include "Viewport/kavoTriangleSoup.h"

#include <QPair>
#include <map>

struct kavoChanges;

/// A cache of what can be drawn and picked in the open scene.
class kavoGeometryCache
{
public:
    const std::vector<kavoRenderItem> &items();
    const kavoTriangleSoup &soup(osg::UInt32 geometry);

    /// Center and radius of a sphere that holds the scene; radius 0 for an empty scene.
    QPair<QVector3D, float> bounds();

    /// The id of the node whose triangles a ray in world space hits first, 0 for none.
    osg::UInt32 pick(const QVector3D &origin, const QVector3D &direction);

    /// Drops what depends on containers that changed.
    void invalidate(const kavoChanges &changes);
    void invalidate(); ///< drops everything

private:
    bool m_valid = false;
    std::vector<kavoRenderItem> m_items;
    std::map<osg::UInt32, kavoTriangleSoup> m_soups; // by geometry
};
