#include <OpenSG/OSGAction.h>

#include "Actions/OSGTraversal.h"

#include <utility>

OSG_BEGIN_NAMESPACE

namespace {

Action::ResultE keepResult(NodePtr &, Action::ResultE result)
{
    return result;
}

} // namespace

Action::ResultE traverse(NodePtr root, TraverseEnterFunctor enter)
{
    return traverse(root, std::move(enter), TraverseLeaveFunctor(keepResult));
}

Action::ResultE traverse(std::vector<NodePtr> &nodeList, TraverseEnterFunctor enter)
{
    return traverse(nodeList, std::move(enter), TraverseLeaveFunctor(keepResult));
}

Action::ResultE traverse(NodePtr root, TraverseEnterFunctor enter, TraverseLeaveFunctor leave)
{
    return Traversal(std::move(enter), std::move(leave)).visit(root);
}

Action::ResultE traverse(
    std::vector<NodePtr> &nodeList, TraverseEnterFunctor enter, TraverseLeaveFunctor leave)
{
    return Traversal(std::move(enter), std::move(leave)).visitAll(nodeList);
}

OSG_END_NAMESPACE
