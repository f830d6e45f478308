#pragma once

#include "Window/kavoPluginLoader.h"

#include <OpenSG/OSGNodePtr.h>

#include <QMainWindow>
#include <QStringList>

class QAction;
class QKAVODockWindowManager;
class QMenu;
class kavoDocument;
class kavoLoadProgress;
class kavoOpenScene;
class kavoRecentFiles;
class kavoSaveActions;
class kavoSceneLoader;
class kavoSceneViews;

/// The application's window: menus, dock windows, opening of scenes.
///
/// It registers itself and its dock-window manager with kavoController, so there is one of it, and
/// it must live until the process ends.
class kavoMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit kavoMainWindow(QWidget *parent = nullptr);

    QKAVODockWindowManager &docks() const { return *m_docks; }
    kavoDocument &document() const { return *m_document; }

    /// Loads the default plug-in folder, if there is one, and the given ones.
    void loadPlugins(const QStringList &extraFolders);
    /// Takes size, places of windows and recent files from the settings and keeps them there.
    void useSettings();

    /// Begins to open files as one scene. Ends in one of opened, openFailed and openCanceled; only
    /// the first touches the scene that is open. The user is asked about edits made meanwhile, not
    /// about those made before.
    void open(const QStringList &files);
    /// Selects a node of the scene by its name or id. \returns whether there is one
    bool select(const QString &nameOrId);
    /// Hides all windows and closes the scene. To be called before main() returns: modules die
    /// after it, and by then neither a visible window nor the rows of one can be deleted.
    void shutDown();

public slots:
    /// Shows an error to the user without stopping the application.
    void reportError(const QString &message);

signals:
    void opened();
    void openFailed(const QString &message);
    void openCanceled();

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void createDockWindows();
    void createFileMenu();
    void createEditMenu();
    void createViewMenu();
    void createHelpMenu();
    void createStatusBar();
    void connectLoader();
    void driveModules();

    void askForFiles();
    void openInstead(const QStringList &files);
    void rememberFile(const QString &file);
    void showTitle();
    void closeScene();
    bool mayReplaceScene();
    void showScene(const osg::NodePtr &root, const QStringList &partlyRead);
    void selectParent();
    void copyName();
    void rebuildViewMenu();
    void about();
    void saveSettings() const;

    QKAVODockWindowManager *m_docks;
    kavoSceneLoader *m_loader;
    kavoOpenScene *m_scene;
    kavoDocument *m_document;
    kavoSceneViews *m_views;
    kavoLoadProgress *m_progress = nullptr;
    kavoRecentFiles *m_recentFiles = nullptr;
    kavoSaveActions *m_saving = nullptr;
    QMenu *m_viewMenu = nullptr;
    kavoPluginLoader m_plugins;
    QStringList m_files;
    bool m_usesSettings = false;
};
