#pragma once

#include <OpenSG/OSGNode.h>

#include <QMatrix4x4>
#include <vector>

/// One geometry in its place, as container ids.
struct kavoRenderItem
{
    osg::UInt32 node;
    osg::UInt32 geometry;
    osg::UInt32 material; ///< 0 for none
    QMatrix4x4 toWorld;
};

/// The geometries of a scene, flat.
namespace kavoRenderItems {

/// All geometries at and below a node that its traversal masks let show, in the order of a
/// walk. A material group's material counts for all below it.
std::vector<kavoRenderItem> of(const osg::NodePtr &root);

QMatrix4x4 toMatrix(const osg::Matrix &matrix);

} // namespace kavoRenderItems
