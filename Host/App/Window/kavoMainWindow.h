#pragma once

#include "Window/kavoPluginLoader.h"

#include <QMainWindow>
#include <QStringList>

class QAction;
class QKAVODockWindowManager;
class QMenu;
class kavoLoadProgress;
class kavoRecentFiles;
class kavoSaveActions;
class kavoDockedViews;
class kavoSession;

/// The application's window: menus, dock windows, progress of loading.
///
/// It registers itself and its dock-window manager with kavoController, so there must be only one,
/// and it must live until the process ends.
class kavoMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit kavoMainWindow(QWidget *parent = nullptr);

    QKAVODockWindowManager &docks() const { return *m_docks; }
    kavoSession &session() const { return *m_session; }

    /// Loads plug-ins from the default folder, if it exists, and from the given folders.
    void loadPlugins(const QStringList &extraFolders);
    /// Restores size, layout and recent files from the settings, and stores them from now on.
    void useSettings();

    /// Hides all windows and closes the scene. Call it before main() returns: modules are destroyed
    /// after that, when neither a visible window nor its rows can be deleted any more.
    void shutDown();

public slots:
    /// Shows an error in a box that does not block.
    void reportError(const QString &message);

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void createDockWindows();
    void createFileMenu();
    void createViewMenu();
    void createHelpMenu();
    void createStatusBar();
    void connectSession();
    void driveModules();

    void askForFiles();
    void rememberFile(const QString &file);
    void showTitle();
    void rebuildViewMenu();
    void about();
    void saveSettings() const;

    QKAVODockWindowManager *m_docks;
    kavoSession *m_session;
    kavoDockedViews *m_views;
    kavoLoadProgress *m_progress = nullptr;
    kavoRecentFiles *m_recentFiles = nullptr;
    kavoSaveActions *m_saving = nullptr;
    QMenu *m_viewMenu = nullptr;
    kavoPluginLoader m_plugins;
    bool m_usesSettings = false;
};
