#pragma once

#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGNodeCoreBase.h>
#include <OpenSG/OSGVolume.h>

OSG_BEGIN_NAMESPACE

/// What a node is. Its parents are the nodes that have it as their core, Node::setCore keeps
/// them.
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
    /// The copy is no node's core yet.
    NodeCore(const NodeCore &source);
    ~NodeCore() override = default;

    /// Multiplies what the core does to its subtree's coordinates onto the matrix.
    virtual void accumulateMatrix(Matrix &result);
    /// Adds what the core itself takes up to the volume of the children, or transforms it.
    virtual void adjustVolume(Volume &volume);

private:
    BitVector getMutualFields() const override { return ParentsFieldMask; }
    void addParent(const NodePtr &parent);
    void subParent(const NodePtr &parent);
};

OSG_END_NAMESPACE
