#include <OpenSG/OSGAction.h>

#include <vector>

OSG_BEGIN_NAMESPACE

namespace {

Action::ResultE keepResult(NodePtr &, Action::ResultE result)
{
    return result;
}

/// Trees may be deeper than the stack.
class Traversal
{
public:
    Traversal(TraverseEnterFunctor enter, TraverseLeaveFunctor leave)
        : _enter(std::move(enter))
        , _leave(std::move(leave))
    {
    }

    Action::ResultE visit(const NodePtr &root)
    {
        Action::ResultE result = enter(root);
        while (!_path.empty()) {
            NodePtr child;
            result = takeChild(child) ? enter(child) : leave();
        }
        return result;
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
    /// A node that was entered and not left yet.
    struct Level
    {
        NodePtr node;
        Action::ResultE result = Action::Continue;
        bool hasChildrenToVisit = true;
        UInt32 nextChild = 0;
    };

    // Leaves are left at once: most nodes are, and they need no place on the path.
    Action::ResultE enter(NodePtr node)
    {
        if (!node) {
            return Action::Continue;
        }
        const Action::ResultE result = _enter.call(node);
        if (result == Action::Continue && node->getNChildren() > 0) {
            _path.push_back({ node });
            return result;
        }
        return leave(node, result == Action::Skip ? Action::Continue : result);
    }

    // By index: a callback may change the list that it is called from.
    bool takeChild(NodePtr &child)
    {
        Level &level = _path.back();
        const bool hasNext
            = level.hasChildrenToVisit && level.nextChild < level.node->getNChildren();
        if (hasNext) {
            child = level.node->getChild(level.nextChild++);
        }
        return hasNext;
    }

    Action::ResultE leave()
    {
        const Level level = _path.back();
        _path.pop_back();
        return leave(level.node, level.result);
    }

    Action::ResultE leave(NodePtr node, Action::ResultE entered)
    {
        const Action::ResultE result = _leave.call(node, entered);
        if (result == Action::Quit && !_path.empty()) {
            _path.back().result = Action::Quit;
            _path.back().hasChildrenToVisit = false;
        }
        return result;
    }

    TraverseEnterFunctor _enter;
    TraverseLeaveFunctor _leave;
    std::vector<Level> _path;
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
