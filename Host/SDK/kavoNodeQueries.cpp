#include <kavoNodeQueries.h>

#include <OpenSG/OSGNode.h>

namespace kavoNodeQueries {

// Attachments are stored by group, and a group may hold other types too.
osg::AttachmentPtr findAttachment(
    const osg::AttachmentContainerPtr &container, const osg::FieldContainerType &type)
{
    const osg::AttachmentPtr found = container->findAttachment(type.getGroupId());
    const bool isOfType = found != osg::NullFC && found->getType().isDerivedFrom(type);
    return isOfType ? found : osg::AttachmentPtr();
}

bool isFullyVisible(const osg::NodePtr &node)
{
    return node->getTravMask() == 0xFFFFFFFF;
}

} // namespace kavoNodeQueries
