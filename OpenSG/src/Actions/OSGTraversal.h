#pragma once

#include "Nodes/OSGNodeDestructionWatch.h"

#include <OpenSG/OSGAction.h>

#include <vector>

OSG_BEGIN_NAMESPACE

/// Walks trees depth first, in a loop: they may be deeper than the stack. Callbacks may change the
/// tree: children count when it is their turn, and a node that is destroyed on the way is passed
/// over from there on, neither its children are visited nor is it left.
class Traversal
{
public:
    Traversal(TraverseEnterFunctor enter, TraverseLeaveFunctor leave);

    Action::ResultE visit(const NodePtr &root);
    /// The list may grow, but its nodes have to live until it is their turn.
    Action::ResultE visitAll(const std::vector<NodePtr> &nodes);

private:
    /// A node that was entered and not left yet; null when it has been destroyed since.
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
