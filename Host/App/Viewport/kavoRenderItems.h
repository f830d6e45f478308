#pragma once

#include <OpenSG/OSGNode.h>

#include <QMatrix4x4>
#include <vector>

/// A geometry to draw. All ids are container ids.
struct kavoRenderItem
{
    osg::UInt32 node;
    osg::UInt32 geometry;
    osg::UInt32 material; ///< 0 for none
    QMatrix4x4 toWorld;
};

/// Lists the geometries of a scene.
namespace kavoRenderItems {

/// All visible geometries at and below a node, parents before children. Nodes with traversal mask 0
/// hide their subtree. The material of a material group replaces the geometry's own.
std::vector<kavoRenderItem> of(const osg::NodePtr &root);

QMatrix4x4 toMatrix(const osg::Matrix &matrix);

} // namespace kavoRenderItems
