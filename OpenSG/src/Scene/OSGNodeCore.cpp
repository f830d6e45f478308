#include <OpenSG/OSGNodeCore.h>

#include <OpenSG/OSGNode.h>

OSG_BEGIN_NAMESPACE

NodeCore::NodeCore(const NodeCore &source)
    : Inherited(source)
{
    _mfParents.clear();
}

void NodeCore::invalidateVolume()
{
    for (const NodePtr &parent : _mfParents) {
        parent->invalidateVolume();
    }
}

void NodeCore::accumulateMatrix(Matrix &)
{
}

void NodeCore::adjustVolume(Volume &)
{
}

void NodeCore::addParent(const NodePtr &parent)
{
    _mfParents.push_back(parent);
}

void NodeCore::subParent(const NodePtr &parent)
{
    const auto found = _mfParents.find(parent);
    if (found != _mfParents.end()) {
        _mfParents.erase(found);
    }
}

OSG_END_NAMESPACE
