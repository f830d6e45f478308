#include "Views/kavoHostLists.h"

#include "Scene/kavoCameraRegistry.h"
#include "Scene/kavoContainers.h"
#include "Views/kavoCoreIcons.h"

#include <OpenSG/OSGLight.h>
#include <OpenSG/OSGMaterial.h>

#include <QCoreApplication>
#include <kavoCallNames.h>
#include <kavoController.h>
#include <kavoDragFormats.h>
#include <kavoIconManager.h>
#include <kavoMessage.h>
#include <kavoScenegraph.h>

namespace {

using Entry = kavoListDescription::Entry;

QString tr(const char *text)
{
    return QCoreApplication::translate("kavoHostLists", text);
}

void showInEditor(const Entry &entry)
{
    const auto material = osg::MaterialPtr::dcast(kavoContainers::find(entry.content));
    if (material == osg::NullFC)
        return;
    kavoMessage message;
    message.set("material", material);
    kavoController::call(kavoCallNames::updateNodeEditorByMaterial, message, 0);
}

osg::LightPtr light(const Entry &entry)
{
    return osg::LightPtr::dcast(kavoContainers::find(entry.content));
}

bool isOn(const Entry &entry)
{
    return light(entry)->getOn();
}

// The view shows the new state when the change list is drained, as for edits made anywhere else.
void setOn(const Entry &entry, bool on)
{
    const osg::LightPtr edited = light(entry);
    if (edited == osg::NullFC)
        return;
    const osg::CPEditor edit(edited, osg::Light::OnFieldMask);
    edited->setOn(on);
}

kavoOpenScene::Entries cameraEntries()
{
    kavoOpenScene::Entries entries;
    for (const osg::UInt32 node : kavoCameraRegistry::nodeIds()) {
        const osg::UInt32 camera = kavoContainers::id(kavoCameraRegistry::at(node));
        entries.push_back({ node, camera, camera });
    }
    return entries;
}

} // namespace

kavoListDescription kavoHostLists::materials(const kavoOpenScene &scene)
{
    return {
        tr("Materials of the scene"),
        { tr("Material"), tr("Type"), tr("ID") },
        kavoDragFormats::materials,
        true,
        true,
        [&scene] { return scene.materials(); },
        [](const Entry &) { return kavoIconManager::getIcon("Material"); },
        showInEditor,
    };
}

kavoListDescription kavoHostLists::lights(const kavoOpenScene &scene)
{
    return {
        tr("Lights of the scene"),
        { tr("Light"), tr("Type"), tr("ID") },
        kavoDragFormats::lights,
        true,
        false,
        [&scene] { return scene.lights(); },
        [](const Entry &entry) { return kavoCoreIcons::icon(light(entry)); },
        [](const Entry &entry) {
            kavoScenegraph::setSelectedNode(kavoContainers::node(entry.node));
        },
        isOn,
        setOn,
    };
}

kavoListDescription kavoHostLists::cameras()
{
    return {
        tr("Cameras of the scene"),
        { tr("Camera"), tr("Type"), tr("ID") },
        kavoDragFormats::cameras,
        false,
        false,
        cameraEntries,
        [](const Entry &) { return kavoIconManager::getIcon("Camera"); },
        [](const Entry &entry) { kavoCameraRegistry::activate(entry.node); },
        {},
        {},
        [](const Entry &entry) { return entry.node == kavoCameraRegistry::activeNodeId(); },
        tr("The active camera"),
    };
}
