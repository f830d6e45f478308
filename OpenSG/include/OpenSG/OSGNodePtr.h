#pragma once

#include <OpenSG/OSGAttachmentContainerPtr.h>

OSG_BEGIN_NAMESPACE

class Node;

/// Handle to a node.
class NodePtr : public FCPtr<AttachmentContainerPtr, Node>
{
    typedef FCPtr<AttachmentContainerPtr, Node> Handle;

public:
    typedef NodePtr ObjectType;
    typedef AttachmentContainerPtr Inherited;
    typedef NodePtr Self;

    template <class InTypeT> static NodePtr dcast(const InTypeT &oIn)
    {
        return NodePtr(Handle::dcast(oIn).getCPtr());
    }

    using Handle::Handle;
    constexpr NodePtr() = default;
    constexpr NodePtr(const NodePtr &) = default;

    void operator=(const NodePtr &other) { Handle::operator=(other); }
    void operator=(const NullFieldContainerPtr &null) { Handle::operator=(null); }
};

inline std::ostream &operator<<(std::ostream &os, const NodePtr &handle)
{
    return HandleText::write(os, "NodePtr", handle);
}

OSG_END_NAMESPACE
