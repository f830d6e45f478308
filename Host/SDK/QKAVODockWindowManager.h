#pragma once

#include <kavoSDKExport.h>

#include <QIcon>
#include <QMap>
#include <QObject>
#include <QStringList>

class QAction;
class QMainWindow;
class QMenu;
namespace ads {
class CDockManager;
class CDockWidget;
} // namespace ads

/// Turns widgets into dockable windows of the host's main window.
///
/// Each window has a unique key and a group. Windows of one group on the same side of the main
/// window are tabs of one area.
class KAVO_SDK_EXPORT QKAVODockWindowManager : public QObject
{
    Q_OBJECT

public:
    /// Creates the docking area in the main window's centre. The main window owns the manager and
    /// the area.
    explicit QKAVODockWindowManager(QMainWindow *mainWindow);
    ~QKAVODockWindowManager() override;

    /// Docks a widget. The caller still has to delete it, although its Qt parent changes; the dock
    /// is deleted with it.
    /// \param key unique; a second window with the same key is rejected with an error in the log
    /// \param group windows of one group and side are tabs of one area
    /// \param hintKey name of the window's hint card
    /// \param icon shown on the tab and in menus, may be null
    /// \param title shown on the tab and in menus
    /// \param area side of the main window; Qt::NoDockWidgetArea stands for the right side
    /// \param visible whether the window is open by default
    /// \param menu menu to add the window's toggle action to, may be null
    void add(const char *key, const QString &group, QWidget *widget, const QString &hintKey,
        const QIcon &icon, const QString &title, Qt::DockWidgetArea area, bool visible,
        QMenu *menu);

    /// Returns the keys of all windows in the order in which they were added.
    QStringList keys() const;
    /// Returns null for an unknown key.
    QWidget *window(const QString &key) const;
    QString group(const QString &key) const;
    QString hintKey(const QString &key) const;
    /// Returns the action that opens the window, raises it if another tab covers it, and closes it
    /// if it is in front. The dock owns the action. Returns null for an unknown key.
    QAction *toggleAction(const QString &key) const;
    /// Opens the window and raises its tab.
    void show(const QString &key);

    /// Returns places and visibility of all windows.
    QByteArray saveState() const;
    /// Restores places and visibility. Windows that are not in the state get their default place.
    /// \returns false, without any change, if the bytes are not a saved state
    bool restoreState(const QByteArray &state);
    /// Moves every window to its default place.
    void resetLayout();
    /// Hides all windows, including floating ones.
    void hideAll();

signals:
    /// Emitted after a window was added or removed.
    void windowsChanged();

private:
    struct Window
    {
        ads::CDockWidget *dock;
        QWidget *widget;
        QString group;
        QString hintKey;
        Qt::DockWidgetArea area;
        bool visible;
    };

    void place(const Window &window);
    void remove(const QString &key);
    void toggle(const QString &key);

    ads::CDockManager *m_docks;
    QMap<QString, Window> m_windows;
    QStringList m_keys;
    QMap<QString, ads::CDockWidget *> m_firstOfArea; // by group and side
};
