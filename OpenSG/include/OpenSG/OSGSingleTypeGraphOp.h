#pragma once

#include <OpenSG/OSGGraphOp.h>

OSG_BEGIN_NAMESPACE

/// A graph operation with callbacks only for nodes whose core is a Type. The results of the
/// callbacks are ignored, so the whole tree is visited. Nodes without a core are skipped.
template <class Type> class SingleTypeGraphOp : public GraphOp
{
public:
    static const char *getClassname() { return "SingleTypeGraphOp"; }

    SingleTypeGraphOp(const char *name = "")
        : GraphOp(name)
    {
    }

protected:
    /// Derived classes override one overload of each. If both are overridden, the first is called.
    virtual bool travNodeEnter(NodePtr node);
    virtual bool travNodeEnter(const NodePtr &node);
    virtual bool travNodeLeave(NodePtr node);
    virtual bool travNodeLeave(const NodePtr &node);

private:
    // A call by name would be ambiguous.
    typedef bool (SingleTypeGraphOp::*ByValue)(NodePtr);
    typedef bool (SingleTypeGraphOp::*ByReference)(const NodePtr &);

    Action::ResultE traverseEnter(NodePtr &node) override;
    Action::ResultE traverseLeave(NodePtr &node, Action::ResultE res) override;

    static bool concerns(const NodePtr &node);
};

template <class Type> bool SingleTypeGraphOp<Type>::travNodeEnter(NodePtr node)
{
    return (this->*static_cast<ByReference>(&SingleTypeGraphOp::travNodeEnter))(node);
}

template <class Type> bool SingleTypeGraphOp<Type>::travNodeEnter(const NodePtr &)
{
    return true;
}

template <class Type> bool SingleTypeGraphOp<Type>::travNodeLeave(NodePtr node)
{
    return (this->*static_cast<ByReference>(&SingleTypeGraphOp::travNodeLeave))(node);
}

template <class Type> bool SingleTypeGraphOp<Type>::travNodeLeave(const NodePtr &)
{
    return true;
}

template <class Type> Action::ResultE SingleTypeGraphOp<Type>::traverseEnter(NodePtr &node)
{
    if (concerns(node)) {
        (this->*static_cast<ByValue>(&SingleTypeGraphOp::travNodeEnter))(node);
    }
    return Action::Continue;
}

template <class Type>
Action::ResultE SingleTypeGraphOp<Type>::traverseLeave(NodePtr &node, Action::ResultE)
{
    if (concerns(node)) {
        (this->*static_cast<ByValue>(&SingleTypeGraphOp::travNodeLeave))(node);
    }
    return Action::Continue;
}

template <class Type> bool SingleTypeGraphOp<Type>::concerns(const NodePtr &node)
{
    return node && node->getCore()
        && node->getCore()->getType().isDerivedFrom(Type::getClassType());
}

OSG_END_NAMESPACE
