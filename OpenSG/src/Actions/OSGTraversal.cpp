#include "Actions/OSGTraversal.h"

#include <utility>

OSG_BEGIN_NAMESPACE

namespace {

constexpr UInt32 fetchedAhead = 4;

// Nodes are scattered in memory, so a traversal mostly waits for memory. This prefetches a node
// that is visited soon.
void fetchChild(const NodePtr &node, UInt32 index)
{
    const NodePtr child = index < node->getNChildren() ? node->getChild(index) : NodePtr();
    if (child) {
        __builtin_prefetch(child->getMFChildren());
    }
}

} // namespace

Traversal::Traversal(TraverseEnterFunctor enter, TraverseLeaveFunctor leave)
    : _enter(std::move(enter))
    , _leave(std::move(leave))
    , _watch([this](const NodePtr &node) { forget(node); })
{
}

Action::ResultE Traversal::visit(const NodePtr &root)
{
    Action::ResultE result = enter(root);
    while (!_path.empty()) {
        const NodePtr child = takeChild();
        result = child ? enter(child) : leave();
    }
    return result;
}

// By index, because a callback may add nodes to the list.
Action::ResultE Traversal::visitAll(const std::vector<NodePtr> &nodes)
{
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        if (visit(nodes[i]) == Action::Quit) {
            return Action::Quit;
        }
    }
    return Action::Continue;
}

void Traversal::forget(const NodePtr &node)
{
    if (_entering == node) {
        _entering = NullFC;
    }
    for (Level &level : _path) {
        if (level.node == node) {
            level.node = NullFC;
        }
    }
}

// Most nodes have no children. They are left at once and not added to the path.
Action::ResultE Traversal::enter(const NodePtr &node)
{
    if (!node) {
        return Action::Continue;
    }
    _entering = node;
    NodePtr argument = node;
    const Action::ResultE result = _enter.call(argument);
    if (result != Action::Continue || !_entering || _entering->getNChildren() == 0) {
        return leave(_entering, result == Action::Skip ? Action::Continue : result);
    }
    for (UInt32 i = 0; i < fetchedAhead; ++i) {
        fetchChild(_entering, i);
    }
    _path.push_back({ _entering });
    return result;
}

// Returns the next child to visit and skips null children. Returns null after the last child.
NodePtr Traversal::takeChild()
{
    Level &level = _path.back();
    while (level.node && level.result != Action::Quit
        && level.nextChild < level.node->getNChildren()) {
        const NodePtr child = level.node->getChild(level.nextChild++);
        if (child) {
            fetchChild(level.node, level.nextChild + fetchedAhead - 1);
            return child;
        }
    }
    return NullFC;
}

Action::ResultE Traversal::leave()
{
    const Level level = _path.back();
    _path.pop_back();
    return leave(level.node, level.result);
}

Action::ResultE Traversal::leave(NodePtr node, Action::ResultE entered)
{
    const Action::ResultE result = node ? _leave.call(node, entered) : entered;
    if (result == Action::Quit && !_path.empty()) {
        _path.back().result = Action::Quit;
    }
    return result;
}

OSG_END_NAMESPACE
