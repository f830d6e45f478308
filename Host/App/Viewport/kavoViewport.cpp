#include "Viewport/kavoViewport.h"

#include "Basics/kavoTry.h"
#include "Scene/kavoCameraRegistry.h"
#include "Scene/kavoContainers.h"
#include "Scene/kavoOpenScene.h"

#include <OpenSG/OSGPerspectiveCamera.h>

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QOpenGLContext>
#include <QtMath>
#include <algorithm>
#include <kavoGuarded.h>
#include <kavoLog.h>
#include <kavoScenegraph.h>

namespace {

constexpr float zoomPerStep = 0.85f; // one step of the wheel is 15 degrees
constexpr float angleUnitsPerStep = 120;
const QColor outlineColor(255, 140, 0);

/// Whether the open scene changed. While another scene is loaded, all changed containers are new or
/// nodes outside the open scene.
bool concernsScene(const kavoChanges &changes)
{
    const auto concerns = [&changes](osg::UInt32 id) {
        const osg::NodePtr node = kavoContainers::node(id);
        return !changes.created.contains(id)
            && (node == osg::NullFC || kavoContainers::isWithin(node, kavoScenegraph::getRoot()));
    };
    return std::any_of(changes.touched.begin(), changes.touched.end(), concerns);
}

} // namespace

bool kavoViewport::isAvailable()
{
    // Without OpenGL; each question would print a warning.
    static const QStringList withoutOpenGL { "offscreen", "minimal", "vnc" };
    return !withoutOpenGL.contains(QGuiApplication::platformName()) && QOpenGLContext().create();
}

QWidget *kavoViewport::create(kavoOpenScene &scene, QWidget *parent)
{
    if (isAvailable())
        return new kavoViewport(scene, parent);
    auto *label = new QLabel(
        tr("The scene cannot be drawn: there is no OpenGL here.\nAll other windows work."), parent);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

kavoViewport::kavoViewport(kavoOpenScene &scene, QWidget *parent)
    : QOpenGLWidget(parent)
    , m_scene(scene)
{
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(200, 150);
    connect(&scene, &kavoOpenScene::replaced, this, &kavoViewport::showScene);
    connect(&scene, &kavoOpenScene::selectionChanged, this, qOverload<>(&QWidget::update));
    connect(
        &scene, &kavoOpenScene::materialRenderingRequested, this, qOverload<>(&QWidget::update));
    connect(&scene, &kavoOpenScene::changed, this, &kavoViewport::react);
    fit();
}

kavoViewport::~kavoViewport()
{
    if (context()) // is destroyed after the viewport and must not call it
        disconnect(context(), nullptr, this, nullptr);
    dropRenderer();
}

void kavoViewport::fit()
{
    const auto [center, radius] = m_geometry.bounds();
    m_camera.fit(center, radius);
    update();
}

void kavoViewport::lookThroughActiveCamera()
{
    const osg::UInt32 id = kavoCameraRegistry::activeNodeId();
    const auto camera = osg::PerspectiveCameraPtr::dcast(kavoCameraRegistry::at(id));
    if (camera == osg::NullFC)
        return;
    m_camera.place(kavoRenderItems::toMatrix(kavoContainers::node(id)->getToWorld()),
        qRadiansToDegrees(camera->getFov()));
    update();
}

osg::NodePtr kavoViewport::nodeAt(const QPoint &point)
{
    const QMatrix4x4 toWorld = (m_camera.projection(size()) * m_camera.view()).inverted();
    const QVector3D onScreen(
        2 * point.x() / float(width()) - 1, 1 - 2 * point.y() / float(height()), 0);
    const QVector3D eye = m_camera.eye();
    return kavoContainers::node(m_geometry.pick(eye, toWorld.map(onScreen) - eye));
}

void kavoViewport::initializeGL()
{
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &kavoViewport::dropRenderer);
    const auto failure
        = kavoTry([this] { m_renderer = std::make_unique<kavoRenderer>(m_geometry); });
    if (failure)
        kavoLog::error("The scene cannot be drawn: %s", qUtf8Printable(*failure));
}

void kavoViewport::paintGL()
{
    if (!m_renderer)
        return;
    kavoGuarded("Drawing the scene", [this] { draw(); });
}

void kavoViewport::draw()
{
    const QVector3D eye = m_camera.eye();
    m_renderer->draw({ m_camera.view(), m_camera.projection(size()), eye,
        kavoRenderLights::of(m_scene.lights(), eye),
        kavoContainers::id(kavoScenegraph::getSelectedNode()), palette().color(QPalette::Dark),
        outlineColor });
}

void kavoViewport::mousePressEvent(QMouseEvent *event)
{
    m_pressed = m_last = event->pos();
}

void kavoViewport::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint moved = event->pos() - m_last;
    m_last = event->pos();
    const bool pans = event->buttons() & Qt::MiddleButton || event->modifiers() & Qt::ShiftModifier;
    if (pans)
        m_camera.pan(moved, size());
    else if (event->buttons() & Qt::LeftButton)
        m_camera.orbit(moved);
    update();
}

void kavoViewport::mouseReleaseEvent(QMouseEvent *event)
{
    const bool clicked = event->button() == Qt::LeftButton
        && (event->pos() - m_pressed).manhattanLength() < QApplication::startDragDistance();
    if (clicked)
        kavoScenegraph::setSelectedNode(nodeAt(event->pos()));
}

void kavoViewport::wheelEvent(QWheelEvent *event)
{
    m_camera.zoom(std::pow(zoomPerStep, event->angleDelta().y() / angleUnitsPerStep));
    update();
}

void kavoViewport::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F)
        fit();
    else
        QOpenGLWidget::keyPressEvent(event);
}

void kavoViewport::showScene()
{
    m_geometry.invalidate();
    if (m_renderer) {
        makeCurrent();
        m_renderer->invalidate();
        doneCurrent();
    }
    fit();
}

void kavoViewport::react(const kavoChanges &changes)
{
    if (!concernsScene(changes))
        return;
    m_geometry.invalidate(changes);
    if (m_renderer) {
        makeCurrent();
        m_renderer->invalidate(changes);
        doneCurrent();
    }
    update();
}

void kavoViewport::dropRenderer()
{
    if (!m_renderer)
        return;
    makeCurrent();
    m_renderer.reset();
    doneCurrent();
}
