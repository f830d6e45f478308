#pragma once

#include "Viewport/kavoOrbitCamera.h"
#include "Viewport/kavoSceneGeometry.h"
#include "Viewport/kavoSceneRenderer.h"

#include <QOpenGLWidget>
#include <memory>

class kavoOpenScene;

/// The picture of the open scene. The left button turns it, the middle one (or the left one with
/// Shift) moves it, the wheel comes closer, F fits it; a click selects the node under the pointer,
/// and the selected node is outlined.
class kavoViewport : public QOpenGLWidget
{
    Q_OBJECT

public:
    /// A viewport, or where there is no OpenGL a label that says so.
    static QWidget *create(kavoOpenScene &scene, QWidget *parent = nullptr);

    explicit kavoViewport(kavoOpenScene &scene, QWidget *parent = nullptr);
    ~kavoViewport() override;

    /// Whether this machine can show one.
    static bool isAvailable();

    /// Shows the whole scene.
    void fit();

    /// Looks through the active camera of the scene, if there is one.
    void lookThroughActiveCamera();

    /// The node of the geometry under a point of the widget, null for none.
    osg::NodePtr nodeAt(const QPoint &point);

protected:
    void initializeGL() override;
    void paintGL() override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void showScene();
    void react(const kavoChanges &changes);
    void draw();
    void dropRenderer();

    const kavoOpenScene &m_scene;
    kavoSceneGeometry m_geometry;
    kavoOrbitCamera m_camera;
    std::unique_ptr<kavoSceneRenderer> m_renderer;
    QPoint m_pressed, m_last;
};
