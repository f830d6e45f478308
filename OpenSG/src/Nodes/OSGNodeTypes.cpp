#include <OpenSG/OSGFieldContainerType.h>

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodeCore.h>

OSG_BEGIN_NAMESPACE

// These members of FieldContainerType are in this room because they need the classes of nodes.

FieldContainerType::Family FieldContainerType::findFamily() const
{
    if (isDerivedFrom(Node::getClassType())) {
        return Family::Node;
    }
    if (isDerivedFrom(NodeCore::getClassType())) {
        return Family::NodeCore;
    }
    return isDerivedFrom(Attachment::getClassType()) ? Family::Attachment : Family::None;
}

NodePtr FieldContainerType::createNode() const
{
    return isNode() ? NodePtr::dcast(createFieldContainer()) : NodePtr();
}

NodeCorePtr FieldContainerType::createNodeCore() const
{
    return isNodeCore() ? NodeCorePtr::dcast(createFieldContainer()) : NodeCorePtr();
}

AttachmentPtr FieldContainerType::createAttachment() const
{
    return isAttachment() ? AttachmentPtr::dcast(createFieldContainer()) : AttachmentPtr();
}

OSG_END_NAMESPACE
