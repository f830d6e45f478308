#pragma once

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>

OSG_BEGIN_NAMESPACE

/// A handle to a node whose core has a known type. It holds a reference to the node.
template <class Core> class CoredNodePtr
{
public:
    typedef typename Core::Ptr CorePtr;

    /// Creates a node with a new core. Returns null before osgInit.
    static CoredNodePtr create() { return CoredNodePtr(makeNodeFor(Core::create())); }

    CoredNodePtr() = default;
    /// The handle is null if the core of the node has another type.
    explicit CoredNodePtr(const NodePtr &node) { *this = node; }

    CoredNodePtr &operator=(const NodePtr &node)
    {
        _core = node ? CorePtr::dcast(node->getCore()) : CorePtr();
        _node = _core ? node : NodePtr();
        return *this;
    }

    NodePtr node() const { return _node.get(); }
    CorePtr core() const { return _core; }
    Core *operator->() const { return _core.operator->(); }
    operator NodePtr() const { return node(); }

    bool operator==(const NullFieldContainerPtr &) const { return !_node; }
    bool operator!=(const NullFieldContainerPtr &) const { return !!_node; }
    bool operator==(const CoredNodePtr &other) const { return _node == other._node; }
    bool operator!=(const CoredNodePtr &other) const { return _node != other._node; }

private:
    RefPtr<NodePtr> _node;
    CorePtr _core;
};

OSG_END_NAMESPACE
