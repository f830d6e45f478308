#pragma once

#include <kavoNodePtr.h>
#include <kavoSDKExport.h>

/// The open scene and its selection. GUI thread only.
class KAVO_SDK_EXPORT kavoScenegraph
{
public:
    /// The selected node, empty if nothing is selected.
    static kavoNodePtr getSelectedNode();
    /// The node's display name (kavoNodeUtils::getName) as UTF-8, possibly null.
    static const char *getNodeName(const osg::NodePtr &node);

    /// Selects a node; null selects nothing. getSelectedNode() follows at once. The messages,
    /// selectionChanged and, for a node, nodeShown, follow once per event-loop round: of several
    /// selections in a row only the last is announced.
    static void setSelectedNode(const osg::NodePtr &node);

    /// The root of the open scene, null if there is none.
    static osg::NodePtr getRoot();
    /// Makes a node the root of the scene and holds a reference to it; the previous root's is
    /// given up. The selection is dropped if the root is another one.
    static void setRoot(const osg::NodePtr &root);
};
