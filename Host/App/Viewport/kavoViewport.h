#pragma once

#include "Viewport/kavoGeometryCache.h"
#include "Viewport/kavoOrbitCamera.h"
#include "Viewport/kavoRenderer.h"

#include <QOpenGLWidget>
#include <memory>

class kavoOpenScene;

/// Draws the open scene and outlines the selected node. The left button turns the camera, the
/// middle button (or the left button with Shift) moves it, the wheel zooms, F fits the whole scene.
/// A click selects the node under the pointer.
class kavoViewport : public QOpenGLWidget
{
    Q_OBJECT

public:
    /// Creates a viewport, or a label with an explanation if there is no OpenGL.
    static QWidget *create(kavoOpenScene &scene, QWidget *parent = nullptr);

    explicit kavoViewport(kavoOpenScene &scene, QWidget *parent = nullptr);
    ~kavoViewport() override;

    /// Whether there is OpenGL.
    static bool isAvailable();

    /// Moves the camera so that the whole scene is visible.
    void fit();

    /// Moves to the active camera of the scene. Ignored if there is none.
    void lookThroughActiveCamera();

    /// The node of the geometry at a point of the widget, null if there is none.
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
    kavoGeometryCache m_geometry;
    kavoOrbitCamera m_camera;
    std::unique_ptr<kavoRenderer> m_renderer;
    QPoint m_pressed, m_last;
};
