#pragma once

#include <OpenSG/OSGAttachmentPtr.h>
#include <OpenSG/OSGBasicHandleTraits.h>
#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGSField.h>

OSG_BEGIN_NAMESPACE

typedef RefPtr<AttachmentPtr> AttachmentRefPtr;

template <> struct FieldDataTraits<AttachmentPtr> : public BasicHandleTraits<AttachmentPtr>
{
    static DataType _type;
    enum { bHasParent = 0x01 };

    static DataType &getType() { return _type; }
    static const Char8 *getSName() { return "SFAttachmentPtr"; }
    static const Char8 *getMName() { return "MFAttachmentPtr"; }
};

typedef SField<AttachmentPtr> SFAttachmentPtr;
typedef MField<AttachmentPtr> MFAttachmentPtr;

OSG_END_NAMESPACE
