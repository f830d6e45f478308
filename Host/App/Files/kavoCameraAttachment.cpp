#include "Files/kavoCameraAttachment.h"

#include "Scene/kavoCameraRegistry.h"

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGFieldContainerFields.h>
#include <OpenSG/OSGMFBaseTypes.h>

#include <algorithm>

namespace {

const char *const mapType = "FCPtrAttributeMap";
const char *const cameraKey = "kavo camera";

/// The two parallel lists of an attribute map.
struct Entries
{
    explicit Entries(const osg::FieldContainerPtr &map)
        : keys(*dynamic_cast<osg::MFString *>(map->getField("keys")))
        , values(*dynamic_cast<osg::MFFieldContainerPtr *>(map->getField("values")))
    {
    }

    void add(const osg::FieldContainerPtr &camera)
    {
        keys.resize(values.size());
        keys.push_back(cameraKey);
        values.push_back(camera);
    }

    osg::MFString &keys;
    osg::MFFieldContainerPtr &values;
};

osg::AttachmentPtr findMap(const osg::NodePtr &root)
{
    const auto *type = osg::FieldContainerFactory::the()->findType(mapType);
    return type ? root->findAttachment(*type) : osg::AttachmentPtr();
}

osg::AttachmentPtr findOrAddMap(const osg::NodePtr &root)
{
    osg::AttachmentPtr map = findMap(root);
    if (map == osg::NullFC) {
        map = osg::FieldContainerFactory::the()->createAttachment(mapType);
        root->addAttachment(map);
    }
    return map;
}

bool isEmpty(const osg::AttachmentPtr &map)
{
    const Entries entries(map);
    return entries.keys.empty() && entries.values.empty();
}

kavoCameraAttachment::List takeCameras(const osg::AttachmentPtr &map)
{
    kavoCameraAttachment::List cameras;
    const osg::CPEditor edit(map);
    Entries entries(map);
    for (osg::UInt32 i = std::min(entries.keys.size(), entries.values.size()); i-- > 0;) {
        const auto camera = osg::CameraPtr::dcast(entries.values[i]);
        if (entries.keys[i] != cameraKey || camera == osg::NullFC)
            continue;
        if (camera->getBeacon() != osg::NullFC)
            cameras.emplace(cameras.begin(), camera);
        entries.keys.erase(entries.keys.begin() + i);
        entries.values.erase(entries.values.begin() + i);
    }
    return cameras;
}

} // namespace

kavoCameraAttachment::kavoCameraAttachment(const osg::NodePtr &root)
    : m_root(root)
{
    const std::vector<osg::UInt32> nodes = kavoCameraRegistry::nodeIds();
    if (nodes.empty())
        return;
    const osg::AttachmentPtr map = findOrAddMap(root);
    const osg::CPEditor edit(map);
    for (const osg::UInt32 node : nodes)
        Entries(map).add(kavoCameraRegistry::at(node));
}

kavoCameraAttachment::~kavoCameraAttachment()
{
    take(m_root);
}

kavoCameraAttachment::List kavoCameraAttachment::take(const osg::NodePtr &root)
{
    const osg::AttachmentPtr map = findMap(root);
    if (map == osg::NullFC)
        return {};
    const List cameras = takeCameras(map);
    if (isEmpty(map))
        root->subAttachment(map);
    return cameras;
}
