#include <OpenSG/OSGNodeCore.h>

#include <OpenSG/OSGNode.h>

#include <algorithm>
#include <iterator>

OSG_BEGIN_NAMESPACE

NodeCore::NodeCore(const NodeCore &source)
    : Inherited(source)
{
    _mfParents.clear();
}

void NodeCore::invalidateVolume()
{
    for (const NodePtr &parent : _mfParents) {
        if (parent) {
            parent->invalidateVolume();
        }
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

// Searches from the back. A core may have very many parents, and trees are destroyed from the back.
void NodeCore::subParent(const NodePtr &parent)
{
    const auto found = std::find(_mfParents.rbegin(), _mfParents.rend(), parent);
    if (found != _mfParents.rend()) {
        _mfParents.erase(std::next(found).base());
    }
}

OSG_END_NAMESPACE
