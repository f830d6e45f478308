#pragma once

#include <OpenSG/OSGAttachmentContainerPtr.h>
#include <OpenSG/OSGBasicHandleTraits.h>
#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGSField.h>

OSG_BEGIN_NAMESPACE

typedef RefPtr<AttachmentContainerPtr> AttachmentContainerRefPtr;

template <>
struct FieldDataTraits<AttachmentContainerPtr> : public BasicHandleTraits<AttachmentContainerPtr>
{
    static DataType _type;
    enum { bHasParent = 0x01 };

    static DataType &getType() { return _type; }
    static const Char8 *getSName() { return "SFAttachmentContainerPtr"; }
    static const Char8 *getMName() { return "MFAttachmentContainerPtr"; }
};

typedef SField<AttachmentContainerPtr> SFAttachmentContainerPtr;
typedef MField<AttachmentContainerPtr> MFAttachmentContainerPtr;

OSG_END_NAMESPACE
