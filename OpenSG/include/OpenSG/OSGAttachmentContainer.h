#pragma once

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGAttachmentContainerBase.h>

OSG_BEGIN_NAMESPACE

/// A container with attachments: at most one of each group and binding. It holds a reference to
/// each. The caller of the functions that add and remove attachments has to begin and end an edit
/// of AttachmentsFieldMask.
class AttachmentContainer : public AttachmentContainerBase
{
    typedef AttachmentContainerBase Inherited;

public:
    /// Replaces an attachment of the same group and binding. Null is ignored.
    void addAttachment(const AttachmentPtr &attachment, UInt16 binding = 0);
    /// Removes the attachment of the same group and binding, even if it is not this one.
    void subAttachment(const AttachmentPtr &attachment, UInt16 binding = 0);

    /// Returns null if there is none.
    AttachmentPtr findAttachment(UInt32 groupId, UInt16 binding = 0);
    AttachmentPtr findAttachment(const FieldContainerType &type, UInt16 binding = 0);

protected:
    friend class FieldContainer;

    AttachmentContainer() = default;
    /// The copy shares the attachments. Deliberate: they all get binding 0.
    AttachmentContainer(const AttachmentContainer &source);
    ~AttachmentContainer() override;

    void forEachHeld(const HeldFunction &function) const override;

private:
    void unlink(AttachmentMap::iterator entry);
};

OSG_END_NAMESPACE
