#pragma once

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGTypedFunctors.h>

#include <vector>

OSG_BEGIN_NAMESPACE

/// Defines the results of the callbacks of a traversal.
class Action
{
public:
    /// Continue visits the children, Skip skips them, Quit ends the traversal.
    enum ResultE { Continue = 0, Skip = 1, Quit = 2 };
};

typedef TypedFunctor1Base<Action::ResultE, CPtrRefCallArg<NodePtr>> TraverseEnterFunctor;
typedef TypedFunctor2Base<Action::ResultE, CPtrRefCallArg<NodePtr>, ArgsCollector<Action::ResultE>>
    TraverseLeaveFunctor;

/// Visits a tree, or each tree of a list, depth first and children in order. Null nodes are
/// skipped. Returns Continue or Quit.
///
/// `leave` is called for every node that was entered, also after Quit. Its argument is the result
/// of the children or, without children, of `enter`. Its own result replaces that one.
///
/// Callbacks may change the tree. If a callback destroys the visited node or a node above it, the
/// remaining children of that node are not visited, and `leave` is not called for it.
Action::ResultE traverse(NodePtr root, TraverseEnterFunctor enter);
Action::ResultE traverse(std::vector<NodePtr> &nodeList, TraverseEnterFunctor enter);
Action::ResultE traverse(NodePtr root, TraverseEnterFunctor enter, TraverseLeaveFunctor leave);
Action::ResultE traverse(
    std::vector<NodePtr> &nodeList, TraverseEnterFunctor enter, TraverseLeaveFunctor leave);

OSG_END_NAMESPACE
