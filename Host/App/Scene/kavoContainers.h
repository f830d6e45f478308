#pragma once

#include <OpenSG/OSGNode.h>

#include <QString>

/// Finds containers by id. Views keep ids instead of handles: ids are never reused, while the
/// handle of a destroyed container dangles.
namespace kavoContainers {

/// The container of that id, null if it was destroyed or never existed.
osg::FieldContainerPtr find(osg::UInt32 id);

/// The node of that id, null if there is no such container or it is not a node.
osg::NodePtr node(osg::UInt32 id);

/// The container's id, 0 for null.
osg::UInt32 id(const osg::FieldContainerPtr &container);

/// The display name: kavoNodeUtils::getName() for a node; for other containers the Name attachment
/// or, without one, the type name. Empty for null.
QString name(const osg::FieldContainerPtr &container);

/// Whether the node is `ancestor` or below it.
bool isWithin(osg::NodePtr node, const osg::NodePtr &ancestor);

} // namespace kavoContainers
