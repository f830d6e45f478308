#include "Scene/kavoEditDetector.h"

#include "Scene/kavoChanges.h"
#include "Scene/kavoContainers.h"

#include <kavoScenegraph.h>

#include <OpenSG/OSGChunkMaterial.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGFieldContainerType.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodeCore.h>

#include <algorithm>

namespace {

const auto &store()
{
    return *osg::FieldContainerFactory::the()->getFieldContainerStore();
}

// Chunks do not know their materials, so all materials are searched. A chunk that a material
// creates for itself is not in its list.
bool isListed(const osg::StateChunkPtr &chunk)
{
    return std::any_of(
        store().begin(), store().end(), [&](const osg::FieldContainerPtr &container) {
            const auto material = osg::ChunkMaterialPtr::dcast(container);
            return material != osg::NullFC && material->find(chunk) >= 0;
        });
}

// Volumes are computed again and again, except static ones.
bool isSaved(const osg::FieldDescription &field, const osg::FieldContainerPtr &container)
{
    const auto node = osg::NodePtr::dcast(container);
    const bool isVolume = node != osg::NullFC && field.getFieldMask() == osg::Node::VolumeFieldMask;
    return !field.isInternal() && (!isVolume || node->getVolume(false).isStatic());
}

} // namespace

void kavoEditDetector::reset()
{
    m_firstNewId = osg::UInt32(store().size());
}

bool kavoEditDetector::areIn(const kavoChanges &changes) const
{
    if (kavoScenegraph::getRoot() == osg::NullFC)
        return false;
    const auto &changed = changes.changed;
    for (auto entry = changed.cbegin(); entry != changed.cend(); ++entry) {
        if (isEdit(entry.key(), entry.value()))
            return true;
    }
    return false;
}

bool kavoEditDetector::isEdit(osg::UInt32 id, osg::BitVector fields) const
{
    const osg::FieldContainerPtr container = kavoContainers::find(id);
    if (container == osg::NullFC)
        return false;
    const osg::FieldContainerType &type = container->getType();
    for (osg::UInt32 i = 1; i <= type.getNumFieldDescs(); ++i) {
        const osg::FieldDescription &field = *type.getFieldDescription(i);
        if ((fields & field.getFieldMask()) != 0 && isSaved(field, container))
            return isInScene(container);
    }
    return false;
}

bool kavoEditDetector::isInScene(const osg::FieldContainerPtr &container) const
{
    if (const auto node = osg::NodePtr::dcast(container); node != osg::NullFC)
        return kavoContainers::isWithin(node, kavoScenegraph::getRoot());
    if (const auto core = osg::NodeCorePtr::dcast(container); core != osg::NullFC)
        return isAnyInScene(core->getParents());
    const bool isOld = kavoContainers::id(container) < m_firstNewId;
    const auto chunk = osg::StateChunkPtr::dcast(container);
    if (chunk != osg::NullFC && isOld && isListed(chunk))
        return true;
    if (const auto attachment = osg::AttachmentPtr::dcast(container); attachment != osg::NullFC)
        return isAnyInScene(attachment->getParents());
    return container != osg::NullFC && isOld && osg::StatePtr::dcast(container) == osg::NullFC;
}

template <class Handles> bool kavoEditDetector::isAnyInScene(const Handles &containers) const
{
    return std::any_of(containers.begin(), containers.end(),
        [this](const auto &container) { return isInScene(container); });
}
