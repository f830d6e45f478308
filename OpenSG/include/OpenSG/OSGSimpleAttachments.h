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

/// An address that an application keeps with a container.
typedef SimpleAttachment<VoidPAttachmentDesc> VoidPAttachment;
typedef VoidPAttachment::PtrType VoidPAttachmentPtr;

extern template class SimpleAttachment<NameAttachmentDesc>;
extern template class SimpleAttachment<VoidPAttachmentDesc>;

/// The container's name, a pointer into its attachment; NULL for a null handle and a container
/// without one.
const Char8 *getName(AttachmentContainerPtr container);
/// Names a container. An empty name is one, a NULL takes the name away.
void setName(AttachmentContainerPtr container, const std::string &name);
void setName(AttachmentContainerPtr container, const Char8 *name);

/// NULL without an attachment.
void *getVoidP(AttachmentContainerPtr container);
void setVoidP(AttachmentContainerPtr container, void *data, bool internal = false);

OSG_END_NAMESPACE
