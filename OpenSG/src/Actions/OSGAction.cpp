#include <OpenSG/OSGAction.h>

OSG_BEGIN_NAMESPACE

namespace {

Action::ResultE keepResult(NodePtr &, Action::ResultE result)
{
    return result;
}

class Traversal
{
public:
    Traversal(TraverseEnterFunctor enter, TraverseLeaveFunctor leave)
        : _enter(std::move(enter))
        , _leave(std::move(leave))
    {
    }

    Action::ResultE visit(NodePtr node)
    {
        if (!node) {
            return Action::Continue;
        }
        Action::ResultE result = _enter.call(node);
        if (result == Action::Continue) {
            result = visitChildren(node);
        } else if (result == Action::Skip) {
            result = Action::Continue;
        }
        return _leave.call(node, result);
    }

    template <class List> Action::ResultE visitAll(const List &nodes)
    {
        for (const NodePtr &node : nodes) {
            if (visit(node) == Action::Quit) {
                return Action::Quit;
            }
        }
        return Action::Continue;
    }

private:
    // By index: a callback may change the list that it is called from.
    Action::ResultE visitChildren(const NodePtr &node)
    {
        for (UInt32 i = 0; i < node->getNChildren(); ++i) {
            if (visit(node->getChild(i)) == Action::Quit) {
                return Action::Quit;
            }
        }
        return Action::Continue;
    }

    TraverseEnterFunctor _enter;
    TraverseLeaveFunctor _leave;
};

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
