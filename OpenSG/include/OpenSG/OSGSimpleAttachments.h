#pragma once

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGSFBaseTypes.h>
#include <OpenSG/OSGSFSysTypes.h>
#include <OpenSG/OSGSimpleAttachment.h>

#include <string>

OSG_BEGIN_NAMESPACE

struct NameAttachmentDesc
{
    typedef SFString FieldTypeT;

    static const Char8 *getTypeName() { return "Name"; }
    static const Char8 *getFieldName() { return "name"; }
    static const Char8 *getGroupName() { return "name"; }
    static const Char8 *getParentTypeName() { return "Attachment"; }
    static InitContainerF getInitMethod() { return nullptr; }
    static FieldDescription **getDesc() { return nullptr; }
};

/// The name of a container.
typedef SimpleAttachment<NameAttachmentDesc> Name;
typedef Name::PtrType NamePtr;
typedef RefPtr<NamePtr> NameRefPtr;

struct VoidPAttachmentDesc
{
    typedef SFVoidP FieldTypeT;

    static const Char8 *getTypeName() { return "VoidPAttachment"; }
    static const Char8 *getFieldName() { return "data"; }
    static const Char8 *getGroupName() { return "voidp"; }
    static const Char8 *getParentTypeName() { return "Attachment"; }
    static InitContainerF getInitMethod() { return nullptr; }
    static FieldDescription **getDesc() { return nullptr; }
};

/// An address that an application stores at a container.
typedef SimpleAttachment<VoidPAttachmentDesc> VoidPAttachment;
typedef VoidPAttachment::PtrType VoidPAttachmentPtr;

extern template class SimpleAttachment<NameAttachmentDesc>;
extern template class SimpleAttachment<VoidPAttachmentDesc>;

/// Returns the name of a container, as a pointer into its attachment. Returns NULL for a null
/// handle and for a container without a name.
const Char8 *getName(AttachmentContainerPtr container);
/// Sets the name of a container. An empty text is a name. NULL removes the name.
void setName(AttachmentContainerPtr container, const std::string &name);
void setName(AttachmentContainerPtr container, const Char8 *name);

/// Returns NULL if there is no attachment.
void *getVoidP(AttachmentContainerPtr container);
void setVoidP(AttachmentContainerPtr container, void *data, bool internal = false);

OSG_END_NAMESPACE
