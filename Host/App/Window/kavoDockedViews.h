#pragma once

#include <QObject>
#include <QPointer>

class QAction;
class QKAVODockWindowManager;
class QWidget;
class kavoListView;
class kavoOpenScene;
class kavoNodeTreeView;

/// The host's own windows on the scene: Viewport, Scene, Materials, Lights and Cameras.
class kavoDockedViews : public QObject
{
    Q_OBJECT

public:
    /// \param scene must outlive this object
    /// \param parent owns this object and the windows
    kavoDockedViews(kavoOpenScene &scene, QWidget *parent);

    /// Docks the windows under the keys "Viewport", "Scene", "Materials", "Lights" and "Cameras";
    /// all but the viewport form the group "Scene". Call it before other windows are docked, so
    /// that the viewport is in the middle.
    void dock(QKAVODockWindowManager &docks);
    /// Deletes the viewport. Call it before main() returns: Qt's OpenGL does not exist after that.
    void closeViewport();

    /// The command that deletes the selected node after a question.
    QAction *deletion() const;

private:
    QPointer<QWidget> m_viewport;
    kavoNodeTreeView *m_scene;
    kavoListView *m_materials;
    kavoListView *m_lights;
    kavoListView *m_cameras;
};
