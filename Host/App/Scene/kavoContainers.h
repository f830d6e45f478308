#pragma once

#include <OpenSG/OSGNode.h>

#include <QString>

/// Containers by id. Views keep ids, never handles: an id is not used twice, while the handle of a
/// container that was destroyed leads nowhere.
namespace kavoContainers {

/// The living container of that id, null if there is none.
osg::FieldContainerPtr find(osg::UInt32 id);

/// The same for nodes; null for any other container.
osg::NodePtr node(osg::UInt32 id);

/// The container's id, 0 for null.
osg::UInt32 id(const osg::FieldContainerPtr &container);

/// What to call it: of a node kavoNodeUtils::getName, else the text of its Name attachment,
/// else the name of its type. Empty for null.
QString name(const osg::FieldContainerPtr &container);

/// Whether the node is `ancestor` or below it.
bool isWithin(osg::NodePtr node, const osg::NodePtr &ancestor);

} // namespace kavoContainers
