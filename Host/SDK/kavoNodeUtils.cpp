#include <kavoNodeUtils.h>

#include <kavoNodeQueries.h>

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodeCore.h>
#include <OpenSG/OSGSimpleAttachments.h>

namespace {

const char *attachedName(const osg::AttachmentContainerPtr &container)
{
    const osg::AttachmentPtr found
        = kavoNodeQueries::findAttachment(container, osg::Name::getClassType());
    if (found == osg::NullFC)
        return nullptr;
    return static_cast<osg::Name *>(found.getCPtr())->getFieldPtr()->getValue().c_str();
}

} // namespace

const char *kavoNodeUtils::getName(const osg::NodePtr &node)
{
    if (node == osg::NullFC)
        return nullptr;
    if (const char *name = attachedName(node))
        return name;
    const osg::NodeCorePtr core = node->getCore();
    if (core == osg::NullFC)
        return nullptr;
    const char *name = attachedName(core);
    return name ? name : core->getType().getCName();
}

bool kavoNodeUtils::hasName(const osg::NodePtr &node)
{
    return node != osg::NullFC && attachedName(node);
}
