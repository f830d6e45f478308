#pragma once

#include <OpenSG/OSGNode.h>

class kavoOpenScene;

/// Deletes nodes of the open scene.
namespace kavoNodeDeleter {

/// Whether the node is in the scene and is not its root.
bool canDelete(const osg::NodePtr &node);

/// Removes the node with its subtree. Ignored if there is no such node. Lights and cameras whose
/// beacon is removed lose the beacon, because they do not reference it.
void deleteNode(osg::UInt32 id, const kavoOpenScene &scene);

} // namespace kavoNodeDeleter
