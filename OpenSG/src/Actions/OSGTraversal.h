#pragma once

#include "Nodes/OSGNodeDestructionWatch.h"

#include <OpenSG/OSGAction.h>

#include <vector>

OSG_BEGIN_NAMESPACE

/// Visits trees depth first. It is a loop, because trees may be deeper than the stack. Callbacks
/// may change the tree: the children of a node are those that it has when their turn comes. If a
/// node on the path is destroyed, its remaining children are not visited and it is not left.
class Traversal
{
public:
    Traversal(TraverseEnterFunctor enter, TraverseLeaveFunctor leave);

    Action::ResultE visit(const NodePtr &root);
    /// The list may grow meanwhile. Its nodes must exist until their turn comes.
    Action::ResultE visitAll(const std::vector<NodePtr> &nodes);

private:
    /// A node that was entered and not left yet. Null after its destruction.
    struct Level
    {
        NodePtr node;
        Action::ResultE result = Action::Continue;
        UInt32 nextChild = 0;
    };

    Action::ResultE enter(const NodePtr &node);
    Action::ResultE leave();
    Action::ResultE leave(NodePtr node, Action::ResultE entered);
    NodePtr takeChild();
    void forget(const NodePtr &node);

    TraverseEnterFunctor _enter;
    TraverseLeaveFunctor _leave;
    NodePtr _entering;
    std::vector<Level> _path;
    NodeDestructionWatch _watch;
};

OSG_END_NAMESPACE
