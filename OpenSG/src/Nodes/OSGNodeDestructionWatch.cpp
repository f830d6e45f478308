#include "Nodes/OSGNodeDestructionWatch.h"

#include <utility>

OSG_BEGIN_NAMESPACE

namespace {

thread_local NodeDestructionWatch *innermost = nullptr;

}

NodeDestructionWatch::NodeDestructionWatch(Function function)
    : _function(std::move(function))
    , _outer(std::exchange(innermost, this))
{
}

NodeDestructionWatch::~NodeDestructionWatch()
{
    innermost = _outer;
}

void NodeDestructionWatch::tell(const NodePtr &node)
{
    for (NodeDestructionWatch *watch = innermost; watch; watch = watch->_outer) {
        watch->_function(node);
    }
}

OSG_END_NAMESPACE
