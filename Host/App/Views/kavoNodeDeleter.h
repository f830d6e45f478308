#pragma once

#include <OpenSG/OSGNode.h>

class kavoOpenScene;

/// Takes nodes out of the open scene.
class kavoNodeDeleter
{
public:
    /// Whether the node is part of the scene and not its root.
    static bool canDelete(const osg::NodePtr &node);

    /// Removes the node of that id with everything below it; nothing happens if there is none.
    /// Lights that stay lose a beacon that goes: they hold no reference to it.
    static void deleteNode(osg::UInt32 id, const kavoOpenScene &scene);
};
