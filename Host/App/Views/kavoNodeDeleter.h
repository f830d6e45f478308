#pragma once

#include <OpenSG/OSGNode.h>

class kavoOpenScene;

/// Takes nodes out of the open scene.
namespace kavoNodeDeleter {

/// Whether the node is part of the scene and not its root.
bool canDelete(const osg::NodePtr &node);

/// Removes the node of that id with everything below it; nothing happens if there is none.
/// Lights that stay lose a beacon that goes: they hold no reference to it.
void deleteNode(osg::UInt32 id, const kavoOpenScene &scene);

} // namespace kavoNodeDeleter
