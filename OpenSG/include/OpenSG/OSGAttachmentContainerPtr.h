#pragma once

#include <OpenSG/OSGFCPtr.h>

OSG_BEGIN_NAMESPACE

class AttachmentContainer;

/// Handle to a container with attachments. It is a class, not a typedef, because its name is part
/// of the type names of all derived handles.
class AttachmentContainerPtr : public FCPtr<FieldContainerPtr, AttachmentContainer>
{
    typedef FCPtr<FieldContainerPtr, AttachmentContainer> Handle;

public:
    typedef AttachmentContainerPtr ObjectType;
    typedef FieldContainerPtr Inherited;
    typedef AttachmentContainerPtr Self;

    template <class InTypeT> static AttachmentContainerPtr dcast(const InTypeT &oIn)
    {
        return AttachmentContainerPtr(Handle::dcast(oIn).getCPtr());
    }

    using Handle::Handle;
    constexpr AttachmentContainerPtr() = default;
    constexpr AttachmentContainerPtr(const AttachmentContainerPtr &) = default;

    void operator=(const AttachmentContainerPtr &other) { Handle::operator=(other); }
    void operator=(const NullFieldContainerPtr &null) { Handle::operator=(null); }
};

inline std::ostream &operator<<(std::ostream &os, const AttachmentContainerPtr &handle)
{
    return HandleText::write(os, "AttachmentContainerPtr", handle);
}

OSG_END_NAMESPACE
