#pragma once

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGNodeBase.h>
#include <OpenSG/OSGNodeCore.h>

#include <vector>

OSG_BEGIN_NAMESPACE

/// A node of the scene. It holds references to its core and its children and has at most one
/// parent. Several nodes may share a core. Trees may have any depth.
class Node : public NodeBase
{
    typedef NodeBase Inherited;

public:
    NodeCorePtr getCore() { return _sfCore.getValue(); }
    NodeCorePtr getCore() const { return _sfCore.getValue(); }
    /// Null removes the core.
    void setCore(const NodeCorePtr &core);

    NodePtr getParent() { return _sfParent.getValue(); }
    NodePtr getParent() const { return _sfParent.getValue(); }

    UInt32 getNChildren() const { return _mfChildren.size(); }
    /// The index is not checked.
    NodePtr getChild(UInt32 childIndex) { return _mfChildren[childIndex]; }
    NodePtr getChild(UInt32 childIndex) const { return _mfChildren[childIndex]; }
    /// Returns -1 if `child` is no child of this node.
    Int32 findChild(const NodePtr &child) const;

    /// A new child is removed from its earlier parent. Null is ignored. A removed child loses
    /// a reference, which may be its last one.
    void addChild(const NodePtr &child);
    void insertChild(UInt32 childIndex, const NodePtr &child);
    void replaceChild(UInt32 childIndex, const NodePtr &child);
    /// Returns false if `child` is no child of this node.
    bool replaceChildBy(const NodePtr &child, const NodePtr &newChild);
    /// If `child` is no child of this node, writes a warning to the log.
    void subChild(const NodePtr &child);
    void subChild(UInt32 childIndex);

    /// Renderers and exports leave out a node if its mask and theirs have no bit in common.
    /// `traverse` ignores the mask. An active node has all bits. A node without any bit is not part
    /// of volumes. The caller of the setters has to begin and end the edit.
    void setTravMask(UInt32 mask) { _sfTravMask.setValue(mask); }
    UInt32 getTravMask() const { return _sfTravMask.getValue(); }
    void setActive(bool active) { setTravMask(active ? allBits : 0); }
    bool getActive() const { return getTravMask() == allBits; }
    void setOcclusionMask(UInt8 mask) { _occlusionMask = mask; }
    UInt8 getOcclusionMask() const { return _occlusionMask; }

    /// Returns the matrix from the node's coordinates to those of its root. It includes the node's
    /// own core.
    Matrix getToWorld();
    void getToWorld(Matrix &result);

    /// Returns the volume of the subtree, in the coordinates of the parent. Changes of cores and
    /// children make it invalid. It is computed again if `update` is true.
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
    /// The copy shares core and attachments. It has no parent and no children.
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

/// Creates a node with this core. Returns null for a null core.
NodePtr makeNodeFor(NodeCorePtr core);

/// Creates a node with a new core and assigns the core to `coreP`.
template <class Core> NodePtr makeCoredNode(typename Core::Ptr *coreP = nullptr)
{
    const typename Core::Ptr core = Core::create();
    if (coreP) {
        *coreP = core;
    }
    return makeNodeFor(core);
}

/// Copies the nodes of a tree. The copies share cores and attachments with the originals.
NodePtr cloneTree(const NodePtr &root);

/// Copies a tree and all containers that its nodes refer to: cores, attachments, materials and so
/// on. Containers that are shared in the tree are shared in the copy. Pointers to nodes of the tree
/// become pointers to their copies. Pointers to other nodes stay the same.
/// \param shareString names of types, separated by commas: "Material,Image". Containers of these
/// types and of derived types are not copied but shared with the original.
NodePtr deepCloneTree(const NodePtr &root, const std::string &shareString = std::string());

OSG_END_NAMESPACE
