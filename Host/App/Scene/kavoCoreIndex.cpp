#include "Scene/kavoCoreIndex.h"

#include "Scene/kavoChangeMonitor.h"
#include "Scene/kavoContainers.h"
#include "Scene/kavoHostMessages.h"
#include "Scene/kavoNodeWalk.h"

#include <OpenSG/OSGLight.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <algorithm>
#include <kavoScenegraph.h>

namespace {

bool structureChangedIn(const kavoChanges &changes)
{
    const osg::NodePtr root = kavoScenegraph::getRoot();
    const osg::BitVector fields = osg::Node::ChildrenFieldMask | osg::Node::CoreFieldMask;
    for (auto entry = changes.changed.cbegin(); entry != changes.changed.cend(); ++entry) {
        if ((entry.value() & fields) == 0)
            continue;
        const osg::NodePtr node = kavoContainers::node(entry.key());
        if (node != osg::NullFC && root != osg::NullFC && kavoContainers::isWithin(node, root))
            return true;
    }
    return false;
}

} // namespace

bool kavoCoreIndex::Entry::operator==(const Entry &other) const
{
    return node == other.node && core == other.core && content == other.content;
}

kavoCoreIndex::kavoCoreIndex(kavoHostMessages &events, kavoChangeMonitor &monitor, QObject *parent)
    : QObject(parent)
{
    connect(&events, &kavoHostMessages::sceneReset, this, &kavoCoreIndex::rebuild);
    connect(&monitor, &kavoChangeMonitor::changed, this, &kavoCoreIndex::update);
    rebuild();
}

void kavoCoreIndex::rebuild()
{
    Entries materials, lights;
    m_root = kavoContainers::id(kavoScenegraph::getRoot());
    kavoNodeWalk::forEachNode(kavoScenegraph::getRoot(), [&](const osg::NodePtr &node) {
        collect(node, materials, lights);
        return true;
    });
    const bool otherMaterials = !(materials == m_materials);
    const bool otherLights = !(lights == m_lights);
    m_materials.swap(materials);
    m_lights.swap(lights);
    if (otherMaterials)
        emit materialsChanged();
    if (otherLights)
        emit lightsChanged();
}

void kavoCoreIndex::collect(const osg::NodePtr &node, Entries &materials, Entries &lights) const
{
    const auto id = &kavoContainers::id;
    const osg::NodeCorePtr core = node->getCore();
    if (const auto group = osg::MaterialGroupPtr::dcast(core); group != osg::NullFC)
        materials.push_back({ id(node), id(core), id(group->getMaterial()) });
    else if (osg::LightPtr::dcast(core) != osg::NullFC)
        lights.push_back({ id(node), id(core), id(core) });
}

void kavoCoreIndex::update(const kavoChanges &changes)
{
    const bool structure = structureChangedIn(changes);
    if (structure || changes.destroyed.contains(m_root) || materialWasReplaced(changes))
        rebuild();
    if (structure)
        emit structureChanged();
}

bool kavoCoreIndex::materialWasReplaced(const kavoChanges &changes) const
{
    return std::any_of(m_materials.begin(), m_materials.end(), [&](const Entry &entry) {
        return changes.contains(entry.core, osg::MaterialGroup::MaterialFieldMask);
    });
}
