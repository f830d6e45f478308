#pragma once

#include <kavoSDKExport.h>

#include <OpenSG/OSGNodePtr.h>

/// Names of nodes.
class KAVO_SDK_EXPORT kavoNodeUtils
{
public:
    /// Returns the display name: the text of the node's Name attachment, else that of its core's,
    /// else the name of the core's type. Returns null for a null node and for a node with neither
    /// name nor core. The text belongs to the scene graph and is valid until the name changes.
    static const char *getName(const osg::NodePtr &node);
    /// Returns whether the node itself has a Name attachment. The name may be empty.
    static bool hasName(const osg::NodePtr &node);
};
