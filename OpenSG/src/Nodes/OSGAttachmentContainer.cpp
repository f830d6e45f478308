#include <OpenSG/OSGAttachmentContainer.h>

OSG_BEGIN_NAMESPACE

namespace {

UInt32 keyOf(UInt32 groupId, UInt16 binding)
{
    return groupId << 16 | binding;
}

} // namespace

AttachmentContainer::AttachmentContainer(const AttachmentContainer &source)
    : Inherited(source)
{
    AttachmentMap attachments;
    attachments.swap(_sfAttachments.getValue());
    for (const auto &entry : attachments) {
        addAttachment(entry.second);
    }
}

AttachmentContainer::~AttachmentContainer()
{
    AttachmentMap &attachments = _sfAttachments.getValue();
    while (!attachments.empty()) {
        unlink(attachments.begin());
    }
}

void AttachmentContainer::forEachHeld(const HeldFunction &function) const
{
    Inherited::forEachHeld(function);
    for (const auto &[key, attachment] : _sfAttachments.getValue()) {
        function(attachment);
    }
}

// The argument may be the handle in the map that this function replaces, so it is copied.
void AttachmentContainer::addAttachment(const AttachmentPtr &newAttachment, UInt16 binding)
{
    const AttachmentPtr attachment = newAttachment;
    if (!attachment) {
        return;
    }
    addRefCP(attachment);
    beginEditCP(attachment, Attachment::ParentsFieldMask);
    attachment->addParent(AttachmentContainerPtr(this));
    endEditCP(attachment, Attachment::ParentsFieldMask);

    AttachmentMap &attachments = _sfAttachments.getValue();
    const UInt32 key = keyOf(attachment->getGroupId(), binding);
    const auto earlier = attachments.find(key);
    if (earlier != attachments.end()) {
        unlink(earlier);
    }
    attachments[key] = attachment;
}

void AttachmentContainer::subAttachment(const AttachmentPtr &attachment, UInt16 binding)
{
    if (!attachment) {
        return;
    }
    AttachmentMap &attachments = _sfAttachments.getValue();
    const auto stored = attachments.find(keyOf(attachment->getGroupId(), binding));
    if (stored != attachments.end()) {
        unlink(stored);
    }
}

void AttachmentContainer::unlink(AttachmentMap::iterator entry)
{
    const AttachmentPtr attachment = entry->second;
    _sfAttachments.getValue().erase(entry);
    beginEditCP(attachment, Attachment::ParentsFieldMask);
    attachment->subParent(AttachmentContainerPtr(this));
    endEditCP(attachment, Attachment::ParentsFieldMask);
    subRefCP(attachment);
}

AttachmentPtr AttachmentContainer::findAttachment(UInt32 groupId, UInt16 binding)
{
    const AttachmentMap &attachments = _sfAttachments.getValue();
    const auto found = attachments.find(keyOf(groupId, binding));
    return found != attachments.end() ? found->second : AttachmentPtr();
}

AttachmentPtr AttachmentContainer::findAttachment(const FieldContainerType &type, UInt16 binding)
{
    return findAttachment(type.getGroupId(), binding);
}

OSG_END_NAMESPACE
