#pragma once

#include <OpenSG/OSGNodePtr.h>

#include <functional>

OSG_BEGIN_NAMESPACE

/// Calls a function for each node that its thread destroys. The watches of a thread must be
/// destroyed in the reverse order of their construction.
class NodeDestructionWatch
{
public:
    typedef std::function<void(const NodePtr &)> Function;

    explicit NodeDestructionWatch(Function function);
    ~NodeDestructionWatch();
    NodeDestructionWatch(const NodeDestructionWatch &) = delete;
    NodeDestructionWatch &operator=(const NodeDestructionWatch &) = delete;

    /// Calls the functions of all watches of the calling thread.
    static void tell(const NodePtr &node);

private:
    Function _function;
    NodeDestructionWatch *_outer;
};

OSG_END_NAMESPACE
