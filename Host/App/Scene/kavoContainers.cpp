#include "Scene/kavoContainers.h"

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <kavoNodeUtils.h>

osg::FieldContainerPtr kavoContainers::find(osg::UInt32 id)
{
    return osg::FieldContainerFactory::the()->getContainer(id);
}

osg::NodePtr kavoContainers::node(osg::UInt32 id)
{
    return osg::NodePtr::dcast(find(id));
}

osg::UInt32 kavoContainers::id(const osg::FieldContainerPtr &container)
{
    return container == osg::NullFC ? 0 : container.getFieldContainerId();
}

QString kavoContainers::name(const osg::FieldContainerPtr &container)
{
    if (container == osg::NullFC)
        return QString();
    const auto node = osg::NodePtr::dcast(container);
    const char *name = node != osg::NullFC
        ? kavoNodeUtils::getName(node)
        : osg::getName(osg::AttachmentContainerPtr::dcast(container));
    return QString::fromUtf8(name ? name : container->getTypeName());
}

bool kavoContainers::isWithin(osg::NodePtr node, const osg::NodePtr &ancestor)
{
    while (node != osg::NullFC && node != ancestor)
        node = node->getParent();
    return node != osg::NullFC;
}
