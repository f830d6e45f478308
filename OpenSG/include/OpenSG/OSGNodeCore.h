#pragma once

#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGNodeCoreBase.h>
#include <OpenSG/OSGVolume.h>

OSG_BEGIN_NAMESPACE

/// The kind of a node: a group, a transformation, a geometry. The parents of a core are the nodes
/// that have it. Node::setCore updates them.
class NodeCore : public NodeCoreBase
{
    typedef NodeCoreBase Inherited;

public:
    static constexpr bool isNodeCore = true;

    /// Invalidates the volumes of all parents.
    virtual void invalidateVolume();

protected:
    friend class FieldContainer;
    friend class Node;

    NodeCore() = default;
    /// The copy has no parents.
    NodeCore(const NodeCore &source);
    ~NodeCore() override = default;

    /// Multiplies the matrix by the transformation that the core applies to its subtree.
    virtual void accumulateMatrix(Matrix &result);
    /// Extends the volume of the children by that of the core, or transforms it.
    virtual void adjustVolume(Volume &volume);

private:
    BitVector getMutualFields() const override { return ParentsFieldMask; }
    void addParent(const NodePtr &parent);
    void subParent(const NodePtr &parent);
};

OSG_END_NAMESPACE
