#pragma once

#include <kavoNodePtr.h>
#include <kavoSDKExport.h>

/// The open scene and its selection. GUI thread only.
class KAVO_SDK_EXPORT kavoScenegraph
{
public:
    /// Returns an empty handle if nothing is selected.
    static kavoNodePtr getSelectedNode();
    /// Returns the node's display name (kavoNodeUtils::getName) as UTF-8, possibly null.
    static const char *getNodeName(const osg::NodePtr &node);

    /// Selects a node, or nothing if it is null. getSelectedNode() returns it at once. The messages
    /// selectionChanged and, for a node, nodeShown are sent once per event-loop round, for the last
    /// selection only.
    static void setSelectedNode(const osg::NodePtr &node);

    /// Returns the root of the open scene, null if there is none.
    static osg::NodePtr getRoot();
    /// Sets the root of the scene, holds a reference to it and releases the previous root. Clears
    /// the selection if the root is a different node.
    static void setRoot(const osg::NodePtr &root);
};
