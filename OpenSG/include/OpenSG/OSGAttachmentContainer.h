#pragma once

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGAttachmentContainerBase.h>

OSG_BEGIN_NAMESPACE

/// A container that attachments can be hung on: one of each group and binding. It holds a
/// reference to each. Adding and removing do not announce an edit of the container:
/// bracket them with an edit of AttachmentsFieldMask.
class AttachmentContainer : public AttachmentContainerBase
{
    typedef AttachmentContainerBase Inherited;

public:
    /// Replaces an attachment of the same group and binding. Null is ignored.
    void addAttachment(const AttachmentPtr &attachment, UInt16 binding = 0);
    /// Removes whatever is stored under the attachment's group and the binding.
    void subAttachment(const AttachmentPtr &attachment, UInt16 binding = 0);

    /// Null if there is none.
    AttachmentPtr findAttachment(UInt32 groupId, UInt16 binding = 0);
    AttachmentPtr findAttachment(const FieldContainerType &type, UInt16 binding = 0);

protected:
    friend class FieldContainer;

    AttachmentContainer() = default;
    /// The copy shares the attachments. Deliberate: all of them with binding 0.
    AttachmentContainer(const AttachmentContainer &source);
    ~AttachmentContainer() override;

    void forEachHeld(const HeldFunction &function) const override;

private:
    void unlink(AttachmentMap::iterator entry);
};

OSG_END_NAMESPACE
