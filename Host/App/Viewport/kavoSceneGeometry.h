#pragma once

#include "Viewport/kavoRenderItems.h"
#include "Viewport/kavoTriangleSoup.h"

#include <QPair>
#include <map>

struct kavoChanges;

/// What there is to draw and to pick in the open scene, kept as long as it does not change.
class kavoSceneGeometry
{
public:
    const std::vector<kavoRenderItem> &items();
    const kavoTriangleSoup &soup(osg::UInt32 geometry);

    /// Center and radius of a sphere round everything; radius 0 for an empty scene.
    QPair<QVector3D, float> bounds();

    /// The node that a ray of the world meets first, 0 for none. Triangles only.
    osg::UInt32 pick(const QVector3D &origin, const QVector3D &direction);

    /// Forgets what changed; all of it without an argument.
    void invalidate(const kavoChanges &changes);
    void invalidate();

private:
    bool m_valid = false;
    std::vector<kavoRenderItem> m_items;
    std::map<osg::UInt32, kavoTriangleSoup> m_soups; // by geometry
};
