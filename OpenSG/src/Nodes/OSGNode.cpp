#include <OpenSG/OSGNode.h>

#include "Nodes/OSGNodeDestructionWatch.h"

#include <OpenSG/OSGCNodePtr.h>
#include <OpenSG/OSGLog.h>

#include <algorithm>
#include <utility>
#include <vector>

OSG_BEGIN_NAMESPACE

const NodePtr Node::NullNode;

CNodePtr::CNodePtr(const NodePtr &node)
    : Inherited(node)
{
}

NodePtr CNodePtr::getNode() const
{
    return NodePtr(static_cast<Node *>(getBaseCPtr()));
}

NodeCore *CNodePtr::getCPtr() const
{
    return getBaseCPtr() ? getNode()->getCore().getCPtr() : nullptr;
}

Node::Node(const Node &source)
    : Inherited(source)
{
    _sfParent.setValue(NullFC);
    _mfChildren.clear();
    _sfCore.setValue(NullFC);
    exchangeCore(source.getCore());
}

// All children lose their parent before the first of them is destroyed. The last child is destroyed
// first, because shared cores and attachments search for their parents from the back.
Node::~Node()
{
    NodeDestructionWatch::tell(NodePtr(this));
    const std::vector<NodePtr> children = std::exchange(_mfChildren.getValues(), {});
    std::for_each(children.begin(), children.end(), leaveParent);
    std::for_each(children.rbegin(), children.rend(), subRefCP);
    exchangeCore(NullFC);
}

void Node::forEachHeld(const HeldFunction &function) const
{
    Inherited::forEachHeld(function);
    std::for_each(_mfChildren.begin(), _mfChildren.end(), function);
    function(getCore());
}

void Node::onCreate(const Node *)
{
    markVolumeInvalid();
}

void Node::setCore(const NodeCorePtr &core)
{
    exchangeCore(core);
    invalidateVolume();
}

void Node::exchangeCore(const NodeCorePtr &core)
{
    const NodeCorePtr old = getCore();
    addRefCP(core);
    _sfCore.setValue(core);
    if (old) {
        beginEditCP(old, NodeCore::ParentsFieldMask);
        old->subParent(NodePtr(this));
        endEditCP(old, NodeCore::ParentsFieldMask);
        subRefCP(old);
    }
    if (core) {
        beginEditCP(core, NodeCore::ParentsFieldMask);
        core->addParent(NodePtr(this));
        endEditCP(core, NodeCore::ParentsFieldMask);
    }
}

Int32 Node::findChild(const NodePtr &child) const
{
    const auto found = _mfChildren.find(child);
    return found != _mfChildren.end() ? static_cast<Int32>(found - _mfChildren.begin()) : -1;
}

void Node::addChild(const NodePtr &child)
{
    insertChild(getNChildren(), child);
}

void Node::insertChild(UInt32 childIndex, const NodePtr &child)
{
    if (!child) {
        return;
    }
    const NodePtr newChild = child;
    takeAsChild(newChild);
    const UInt32 index = std::min(childIndex, getNChildren());
    _mfChildren.insert(_mfChildren.begin() + index, newChild);
    invalidateVolume();
}

void Node::replaceChild(UInt32 childIndex, const NodePtr &child)
{
    const NodePtr old = getChild(childIndex);
    const NodePtr newChild = child;
    if (!newChild || newChild == old) {
        return;
    }
    takeAsChild(newChild);
    _mfChildren[findChild(old)] = newChild;
    releaseChild(old);
    invalidateVolume();
}

bool Node::replaceChildBy(const NodePtr &child, const NodePtr &newChild)
{
    const Int32 index = findChild(child);
    if (index >= 0) {
        replaceChild(index, newChild);
    }
    return index >= 0;
}

void Node::subChild(const NodePtr &child)
{
    const Int32 index = findChild(child);
    if (index < 0) {
        SWARNING << "Node::subChild: " << child << " is not one of my children!" << endLog;
        return;
    }
    subChild(static_cast<UInt32>(index));
}

void Node::subChild(UInt32 childIndex)
{
    const NodePtr child = getChild(childIndex);
    _mfChildren.erase(_mfChildren.begin() + childIndex);
    releaseChild(child);
    invalidateVolume();
}

void Node::setParent(const NodePtr &parent)
{
    _sfParent.setValue(parent);
}

// The reference comes first, so that the earlier parent does not destroy the child.
void Node::takeAsChild(const NodePtr &child)
{
    addRefCP(child);
    if (const NodePtr earlier = child->getParent()) {
        beginEditCP(earlier, ChildrenFieldMask);
        earlier->subChild(child);
        endEditCP(earlier, ChildrenFieldMask);
    }
    beginEditCP(child, ParentFieldMask);
    child->setParent(NodePtr(this));
    endEditCP(child, ParentFieldMask);
}

void Node::releaseChild(const NodePtr &child)
{
    const NodePtr released = child;
    leaveParent(released);
    subRefCP(released);
}

void Node::leaveParent(const NodePtr &child)
{
    if (child) {
        beginEditCP(child, ParentFieldMask);
        child->setParent(NullFC);
        endEditCP(child, ParentFieldMask);
    }
}

Matrix Node::getToWorld()
{
    Matrix result;
    getToWorld(result);
    return result;
}

void Node::getToWorld(Matrix &result)
{
    std::vector<Node *> path;
    for (Node *node = this; node; node = node->getParent().getCPtr()) {
        path.push_back(node);
    }
    result.setIdentity();
    for (auto node = path.rbegin(); node != path.rend(); ++node) {
        if (const NodeCorePtr core = (*node)->getCore()) {
            core->accumulateMatrix(result);
        }
    }
}

DynamicVolume &Node::getVolume(bool update)
{
    if (update) {
        updateVolume();
    }
    return _sfVolume.getValue();
}

void Node::getWorldVolume(DynamicVolume &result)
{
    result = getVolume(true);
    if (const NodePtr parent = getParent()) {
        result.transform(parent->getToWorld());
    }
}

// The list has children behind their parents. Going through it from the end, every node is computed
// after its children.
void Node::updateVolume()
{
    std::vector<Node *> outdated;
    if (needsVolume()) {
        outdated.push_back(this);
    }
    for (std::size_t i = 0; i < outdated.size(); ++i) {
        for (const NodePtr &child : outdated[i]->_mfChildren) {
            if (child && child->needsVolume()) {
                outdated.push_back(child.getCPtr());
            }
        }
    }
    for (auto node = outdated.rbegin(); node != outdated.rend(); ++node) {
        (*node)->computeVolume();
    }
}

bool Node::needsVolume() const
{
    return !getVolume().isValid() && getTravMask() != 0;
}

void Node::computeVolume()
{
    DynamicVolume &volume = _sfVolume.getValue();
    volume.getInstance().setEmpty();
    for (const NodePtr &child : _mfChildren) {
        if (child && child->getTravMask() != 0) {
            volume.getInstance().extendBy(child->getVolume());
        }
    }
    if (const NodeCorePtr core = getCore()) {
        core->adjustVolume(volume.getInstance());
    }
    volume.instanceChanged();
}

// If a volume is invalid, the volumes above it are invalid already.
void Node::invalidateVolume()
{
    for (Node *node = this; node && node->getVolume().isValid();
         node = node->getParent().getCPtr()) {
        node->markVolumeInvalid();
    }
}

void Node::markVolumeInvalid()
{
    beginEditCP(NodePtr(this), VolumeFieldMask);
    _sfVolume.getValue().setValid(false);
    endEditCP(NodePtr(this), VolumeFieldMask);
}

void Node::changed(BitVector whichField, UInt32 origin)
{
    if (whichField & (CoreFieldMask | ChildrenFieldMask)) {
        invalidateVolume();
    }
    if (whichField & TravMaskFieldMask) {
        const NodePtr parent = getParent();
        (parent ? parent : NodePtr(this))->invalidateVolume();
    }
    Inherited::changed(whichField, origin);
}

NodePtr makeNodeFor(NodeCorePtr core)
{
    if (!core) {
        return NullFC;
    }
    const NodePtr node = Node::create();
    beginEditCP(node, Node::CoreFieldMask);
    node->setCore(core);
    endEditCP(node, Node::CoreFieldMask);
    return node;
}

NodePtr cloneTree(const NodePtr &root)
{
    if (!root) {
        return NullFC;
    }
    const auto copyOf = [](const NodePtr &node) { return NodePtr::dcast(node->shallowCopy()); };
    std::vector<std::pair<NodePtr, NodePtr>> copies { { root, copyOf(root) } };
    for (std::size_t i = 0; i < copies.size(); ++i) {
        const auto [original, copy] = copies[i];
        for (const NodePtr &child : *original->getMFChildren()) {
            if (child) {
                copies.emplace_back(child, copyOf(child));
                copy->addChild(copies.back().second);
            }
        }
    }
    return copies.front().second;
}

OSG_END_NAMESPACE
