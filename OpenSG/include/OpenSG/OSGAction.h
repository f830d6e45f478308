#pragma once

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGTypedFunctors.h>

#include <vector>

OSG_BEGIN_NAMESPACE

/// What the callbacks of a traversal return.
class Action
{
public:
    /// Continue visits the children, Skip leaves them out, Quit ends the traversal.
    enum ResultE { Continue = 0, Skip = 1, Quit = 2 };
};

typedef TypedFunctor1Base<Action::ResultE, CPtrRefCallArg<NodePtr>> TraverseEnterFunctor;
typedef TypedFunctor2Base<Action::ResultE, CPtrRefCallArg<NodePtr>, ArgsCollector<Action::ResultE>>
    TraverseLeaveFunctor;

/// Visits a tree, or each tree of a list, depth first and children in order. `leave` is called
/// for every node that was entered, also on the way out of a Quit, with the result so far: that
/// of the node's children, or of entering it. What it returns counts from there on. Null nodes
/// are passed over. The result is Continue or Quit.
///
/// Callbacks may change the tree. A node that they destroy, be it the one that is visited or one
/// above it, is passed over from there on: neither are its other children visited nor is it left.
Action::ResultE traverse(NodePtr root, TraverseEnterFunctor enter);
Action::ResultE traverse(std::vector<NodePtr> &nodeList, TraverseEnterFunctor enter);
Action::ResultE traverse(NodePtr root, TraverseEnterFunctor enter, TraverseLeaveFunctor leave);
Action::ResultE traverse(
    std::vector<NodePtr> &nodeList, TraverseEnterFunctor enter, TraverseLeaveFunctor leave);

OSG_END_NAMESPACE
