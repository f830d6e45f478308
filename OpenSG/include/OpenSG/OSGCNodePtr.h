#pragma once

#include <OpenSG/OSGNodePtr.h>

OSG_BEGIN_NAMESPACE

class NodeCore;

/// Handle to a node that stands for the node's core: `operator->` gives the core.
class CNodePtr : public AttachmentContainerPtr
{
public:
    typedef NodeCore StoredObjectType;
    typedef CNodePtr ObjectType;
    typedef AttachmentContainerPtr Inherited;

    constexpr CNodePtr() = default;
    constexpr CNodePtr(const NullFieldContainerPtr &) { }
    constexpr CNodePtr(const CNodePtr &) = default;
    CNodePtr(const NodePtr &node);

    /// NULL for a node without a core.
    NodeCore *operator->() const { return getCPtr(); }
    NodeCore &operator*() const { return *getCPtr(); }
    NodeCore *getCPtr() const;
    NodePtr getNode() const;

    void operator=(const CNodePtr &other) { Inherited::operator=(other); }
    void operator=(const NullFieldContainerPtr &null) { Inherited::operator=(null); }
};

OSG_END_NAMESPACE
