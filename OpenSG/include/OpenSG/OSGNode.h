#pragma once

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGNodeBase.h>
#include <OpenSG/OSGNodeCore.h>

#include <vector>

OSG_BEGIN_NAMESPACE

/// A place in the scene. A node holds references to its core and children; it has one parent at
/// most, its core may be shared by several nodes. Trees may be of any depth.
class Node : public NodeBase
{
    typedef NodeBase Inherited;

public:
    NodeCorePtr getCore() { return _sfCore.getValue(); }
    NodeCorePtr getCore() const { return _sfCore.getValue(); }
    /// Null takes the core away.
    void setCore(const NodeCorePtr &core);

    NodePtr getParent() { return _sfParent.getValue(); }
    NodePtr getParent() const { return _sfParent.getValue(); }

    UInt32 getNChildren() const { return _mfChildren.size(); }
    /// The index is not checked.
    NodePtr getChild(UInt32 childIndex) { return _mfChildren[childIndex]; }
    NodePtr getChild(UInt32 childIndex) const { return _mfChildren[childIndex]; }
    /// -1 if it is no child.
    Int32 findChild(const NodePtr &child) const;

    /// A new child leaves its earlier parent; null is ignored. A child that is taken away loses
    /// a reference, which may be its last.
    void addChild(const NodePtr &child);
    void insertChild(UInt32 childIndex, const NodePtr &child);
    void replaceChild(UInt32 childIndex, const NodePtr &child);
    /// False if `child` is no child.
    bool replaceChildBy(const NodePtr &child, const NodePtr &newChild);
    /// A stranger is reported in the log.
    void subChild(const NodePtr &child);
    void subChild(UInt32 childIndex);

    /// For renderers and exports, which leave out a node whose mask has no bit in common with
    /// theirs; `traverse` does not look at it. An active node has all bits, one without any counts
    /// in no volume. Setting it announces no edit.
    void setTravMask(UInt32 mask) { _sfTravMask.setValue(mask); }
    UInt32 getTravMask() const { return _sfTravMask.getValue(); }
    void setActive(bool active) { setTravMask(active ? allBits : 0); }
    bool getActive() const { return getTravMask() == allBits; }
    void setOcclusionMask(UInt8 mask) { _occlusionMask = mask; }
    UInt8 getOcclusionMask() const { return _occlusionMask; }

    /// From the node's coordinates to those of its root; its own core is included.
    Matrix getToWorld();
    void getToWorld(Matrix &result);

    /// What the subtree takes up, in the coordinates of the parent. It is computed on demand:
    /// changes of cores and children make it invalid.
    DynamicVolume &getVolume(bool update);
    const DynamicVolume &getVolume() const { return _sfVolume.getValue(); }
    void getWorldVolume(DynamicVolume &result);
    void updateVolume();
    void invalidateVolume();

    void changed(BitVector whichField, UInt32 origin) override;

protected:
    friend class FieldContainer;

    static const NodePtr NullNode;

    Node() = default;
    /// The copy shares core and attachments and has neither parent nor children.
    Node(const Node &source);
    ~Node() override;

    void onCreate(const Node *source = nullptr);

    void forEachHeld(const HeldFunction &function) const override;

private:
    static constexpr UInt32 allBits = 0xffffffff;

    BitVector getMutualFields() const override
    {
        return ParentFieldMask | ChildrenFieldMask | CoreFieldMask;
    }
    void exchangeCore(const NodeCorePtr &core);
    void setParent(const NodePtr &parent);
    void markVolumeInvalid();
    void takeAsChild(const NodePtr &child);
    static void releaseChild(const NodePtr &child);
    static void leaveParent(const NodePtr &child);
    bool needsVolume() const;
    void computeVolume();

    UInt8 _occlusionMask = 0;
};

/// A new node with this core; null for a null core.
NodePtr makeNodeFor(NodeCorePtr core);

/// A new node with a new core, which is also given to `coreP`.
template <class Core> NodePtr makeCoredNode(typename Core::Ptr *coreP = nullptr)
{
    const typename Core::Ptr core = Core::create();
    if (coreP) {
        *coreP = core;
    }
    return makeNodeFor(core);
}

/// Copies the nodes of a tree; the copies share cores and attachments with the originals.
NodePtr cloneTree(const NodePtr &root);

/// Copies a tree with all that its nodes refer to: cores, attachments, materials and so on. What is
/// shared within the tree is shared within the copy. Pointers to nodes of the tree lead to their
/// copies, those to other nodes to the same nodes as ever.
/// \param shareString types, separated by commas, whose containers are not copied but shared with
/// the original, as are those of types derived from them: "Material,Image"
NodePtr deepCloneTree(const NodePtr &root, const std::string &shareString = std::string());

OSG_END_NAMESPACE
