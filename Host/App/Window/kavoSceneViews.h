#pragma once

#include <QObject>
#include <QPointer>

class QAction;
class QKAVODockWindowManager;
class QWidget;
class kavoListView;
class kavoOpenScene;
class kavoSceneView;

/// The host's own windows on the scene (Viewport, Scene, Materials, Lights, Cameras) and what keeps
/// them in step with it.
class kavoSceneViews : public QObject
{
    Q_OBJECT

public:
    /// \param scene must outlive this object
    /// \param parent owns this object and the windows
    kavoSceneViews(kavoOpenScene &scene, QWidget *parent);

    /// Docks the viewport, and the other windows in the group "Scene", under the keys "Viewport",
    /// "Scene", "Materials", "Lights" and "Cameras". The viewport is in the middle if it comes
    /// before all other windows of the host.
    void dock(QKAVODockWindowManager &docks);
    /// Deletes the viewport, which must not outlive main() as windows may: Qt's OpenGL does not.
    void closeViewport();

    /// Deletes the selected node after a question.
    QAction *deletion() const;

private:
    QPointer<QWidget> m_viewport;
    kavoSceneView *m_scene;
    kavoListView *m_materials;
    kavoListView *m_lights;
    kavoListView *m_cameras;
};
