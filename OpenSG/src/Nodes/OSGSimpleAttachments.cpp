#include <OpenSG/OSGSimpleAttachments.h>

#include <OpenSG/OSGLog.h>

OSG_BEGIN_NAMESPACE

template class SimpleAttachment<NameAttachmentDesc>;
template class SimpleAttachment<VoidPAttachmentDesc>;

namespace {

template <class AttachmentT> typename AttachmentT::PtrType find(AttachmentContainerPtr container)
{
    typedef typename AttachmentT::PtrType Ptr;
    return container ? Ptr::dcast(container->findAttachment(AttachmentT::getClassType())) : Ptr();
}

template <class AttachmentT>
typename AttachmentT::PtrType findOrAdd(AttachmentContainerPtr container)
{
    typename AttachmentT::PtrType attachment = find<AttachmentT>(container);
    if (!attachment) {
        attachment = AttachmentT::create();
        beginEditCP(container, AttachmentContainer::AttachmentsFieldMask);
        container->addAttachment(attachment);
        endEditCP(container, AttachmentContainer::AttachmentsFieldMask);
    }
    return attachment;
}

} // namespace

const Char8 *getName(AttachmentContainerPtr container)
{
    const NamePtr name = find<Name>(container);
    return name ? name->getFieldPtr()->getValue().c_str() : nullptr;
}

void setName(AttachmentContainerPtr container, const std::string &name)
{
    if (!container) {
        SFATAL << "setName: no container" << endLog;
        return;
    }
    const NamePtr attachment = findOrAdd<Name>(container);
    beginEditCP(attachment);
    attachment->getFieldPtr()->setValue(name);
    endEditCP(attachment);
}

void setName(AttachmentContainerPtr container, const Char8 *name)
{
    if (!container) {
        SFATAL << "setName: no container" << endLog;
    } else if (name) {
        setName(container, std::string(name));
    } else if (const NamePtr attachment = find<Name>(container)) {
        beginEditCP(container, AttachmentContainer::AttachmentsFieldMask);
        container->subAttachment(attachment);
        endEditCP(container, AttachmentContainer::AttachmentsFieldMask);
    }
}

void *getVoidP(AttachmentContainerPtr container)
{
    const VoidPAttachmentPtr attachment = find<VoidPAttachment>(container);
    return attachment ? attachment->getFieldPtr()->getValue() : nullptr;
}

void setVoidP(AttachmentContainerPtr container, void *data, bool internal)
{
    if (!container) {
        SFATAL << "setVoidP: no container" << endLog;
        return;
    }
    const VoidPAttachmentPtr attachment = findOrAdd<VoidPAttachment>(container);
    beginEditCP(attachment);
    attachment->getFieldPtr()->setValue(data);
    attachment->setInternal(internal);
    endEditCP(attachment);
}

OSG_END_NAMESPACE
