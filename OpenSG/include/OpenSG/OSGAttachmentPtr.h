#pragma once

#include <OpenSG/OSGFCPtr.h>

OSG_BEGIN_NAMESPACE

class Attachment;

/// Handle to an attachment of any kind.
class AttachmentPtr : public FCPtr<FieldContainerPtr, Attachment>
{
    typedef FCPtr<FieldContainerPtr, Attachment> Handle;

public:
    typedef AttachmentPtr ObjectType;
    typedef FieldContainerPtr Inherited;
    typedef AttachmentPtr Self;

    template <class InTypeT> static AttachmentPtr dcast(const InTypeT &oIn)
    {
        return AttachmentPtr(Handle::dcast(oIn).getCPtr());
    }

    using Handle::Handle;
    constexpr AttachmentPtr() = default;
    constexpr AttachmentPtr(const AttachmentPtr &) = default;

    void operator=(const AttachmentPtr &other) { Handle::operator=(other); }
    void operator=(const NullFieldContainerPtr &null) { Handle::operator=(null); }
};

inline std::ostream &operator<<(std::ostream &os, const AttachmentPtr &handle)
{
    return HandleText::write(os, "AttachmentPtr", handle);
}

OSG_END_NAMESPACE
