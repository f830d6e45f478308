#pragma once

#include "Scene/kavoSceneEvents.h"
#include "Scene/kavoSceneIndex.h"

#include <QObject>
#include <QPointer>

class QAction;
class QKAVODockWindowManager;
class QWidget;
class kavoCameraView;
class kavoChangeMonitor;
class kavoLightView;
class kavoMaterialView;
class kavoSceneView;

/// The host's own windows on the scene (Viewport, Scene, Materials, Lights, Cameras) and what keeps
/// them in step with it. Needs osgInit, with writable change lists, and an application object.
class kavoSceneViews : public QObject
{
    Q_OBJECT

public:
    /// \param monitor must outlive this object
    /// \param parent owns this object and the windows
    kavoSceneViews(kavoChangeMonitor &monitor, QWidget *parent);

    /// Docks the viewport, and the other windows in the group "Scene", under the keys "Viewport",
    /// "Scene", "Materials", "Lights" and "Cameras". The viewport is in the middle if it comes
    /// before all other windows of the host.
    void dock(QKAVODockWindowManager &docks);
    /// Deletes the viewport, which must not outlive main() as windows may: Qt's OpenGL does not.
    void closeViewport();

    /// Deletes the selected node after a question.
    QAction *deletion() const;

private:
    kavoSceneEvents m_events;
    kavoSceneIndex m_index;
    QPointer<QWidget> m_viewport;
    kavoSceneView *m_scene;
    kavoMaterialView *m_materials;
    kavoLightView *m_lights;
    kavoCameraView *m_cameras;
};
