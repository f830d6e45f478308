#pragma once

#include <OpenSG/OSGAttachmentPtr.h>
#include <OpenSG/OSGFieldDataType.h>
#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGSField.h>

#include <map>

OSG_BEGIN_NAMESPACE

/// Attachments by key: group id << 16 | binding.
typedef std::map<UInt32, AttachmentPtr> AttachmentMap;

/// The text of a map is its type name. Its binary form is empty.
template <> struct FieldDataTraits<AttachmentMap> : public FieldTraitsRecurseMapper<AttachmentMap>
{
    static DataType _type;
    enum { StringConvertable = ToStringConvertable };

    static DataType &getType() { return _type; }
    static const Char8 *getSName() { return "SFAttachmentMap"; }
    static const Char8 *getMName() { return "MFAttachmentMap"; }

    static void putToString(const AttachmentMap &, std::string &outStr)
    {
        outStr = "AttachmentMap";
    }
    static AttachmentMap getDefault() { return AttachmentMap(); }
};

typedef SField<AttachmentMap> SFAttachmentMap;
typedef MField<AttachmentMap> MFAttachmentMap;

OSG_END_NAMESPACE
