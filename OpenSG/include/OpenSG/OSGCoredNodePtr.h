#pragma once

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>

OSG_BEGIN_NAMESPACE

/// A referenced node together with its core of a known type.
template <class Core> class CoredNodePtr
{
public:
    typedef typename Core::Ptr CorePtr;

    /// A new node with a new core; null before osgInit.
    static CoredNodePtr create() { return CoredNodePtr(makeNodeFor(Core::create())); }

    CoredNodePtr() = default;
    /// Null unless the node has a core of the type.
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
