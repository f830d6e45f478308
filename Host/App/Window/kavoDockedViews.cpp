#include "Window/kavoDockedViews.h"

#include "Scene/kavoOpenScene.h"
#include "Viewport/kavoViewport.h"
#include "Views/kavoHostLists.h"
#include "Views/kavoListView.h"
#include "Views/kavoNodeTreeView.h"

#include <QKAVODockWindowManager.h>
#include <QWidget>
#include <kavoController.h>
#include <kavoIconManager.h>
#include <kavoMessage.h>
#include <kavoMessageIds.h>

namespace {

void announceStructure()
{
    kavoMessage message(kavoMessageIds::sceneGraphChanged);
    kavoController::sendMessage(message);
}

} // namespace

kavoDockedViews::kavoDockedViews(kavoOpenScene &scene, QWidget *parent)
    : QObject(parent)
    , m_viewport(kavoViewport::create(scene, parent))
    , m_scene(new kavoNodeTreeView(scene, parent))
    , m_materials(new kavoListView(kavoHostLists::materials(scene), scene, parent))
    , m_lights(new kavoListView(kavoHostLists::lights(scene), scene, parent))
    , m_cameras(new kavoListView(kavoHostLists::cameras(), scene, parent))
{
    connect(&scene, &kavoOpenScene::structureChanged, this, announceStructure);
    if (auto *viewport = qobject_cast<kavoViewport *>(m_viewport.data()))
        connect(m_cameras, &kavoListView::rowActivated, viewport,
            &kavoViewport::lookThroughActiveCamera);
}

void kavoDockedViews::dock(QKAVODockWindowManager &docks)
{
    docks.add("Viewport", QStringLiteral("Viewport"), m_viewport,
        QStringLiteral("Hintcard_Viewport"), kavoIconManager::getIcon("Scene"), tr("Viewport"),
        Qt::TopDockWidgetArea, true, nullptr);
    const struct
    {
        const char *key;
        QWidget *window;
        const char *icon;
        QString title;
    } rows[] = {
        { "Scene", m_scene, "Scene", tr("Scene") },
        { "Materials", m_materials, "Material", tr("Materials") },
        { "Lights", m_lights, "Light", tr("Lights") },
        { "Cameras", m_cameras, "Camera", tr("Cameras") },
    };
    for (const auto &row : rows)
        docks.add(row.key, QStringLiteral("Scene"), row.window,
            QStringLiteral("Hintcard_%1").arg(row.key), kavoIconManager::getIcon(row.icon),
            row.title, Qt::LeftDockWidgetArea, true, nullptr);
}

QAction *kavoDockedViews::deletion() const
{
    return m_scene->deletion();
}

void kavoDockedViews::closeViewport()
{
    delete m_viewport;
}
