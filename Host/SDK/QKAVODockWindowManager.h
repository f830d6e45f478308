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
/// Each window has a key, by which it is found and its place is remembered, and a group. Windows
/// of one group that share a side of the main window are tabs of one area.
class KAVO_SDK_EXPORT QKAVODockWindowManager : public QObject
{
    Q_OBJECT

public:
    /// Fills the main window's centre. The main window owns both the manager and the area.
    explicit QKAVODockWindowManager(QMainWindow *mainWindow);
    ~QKAVODockWindowManager() override;

    /// Docks a widget. It stays the caller's to delete, even though its Qt parent changes; its
    /// dock goes with it.
    /// \param key unique; a second window of the same key is refused with a line in the log
    /// \param group windows of one group and side are tabs of one area
    /// \param hintKey names the window's hint card; kept for hintKey()
    /// \param icon shown on the tab and in menus, may be null
    /// \param title shown on the tab and in menus
    /// \param area side of the main window; Qt::NoDockWidgetArea leaves it to the manager, which
    ///     takes the right side
    /// \param visible whether the window is open until the user decides otherwise
    /// \param menu receives the window's toggle action, besides the View menu; may be null
    void add(const char *key, const QString &group, QWidget *widget, const QString &hintKey,
        const QIcon &icon, const QString &title, Qt::DockWidgetArea area, bool visible,
        QMenu *menu);

    /// Keys of all windows in the order of their arrival.
    QStringList keys() const;
    /// The widget docked under the key, null if there is none.
    QWidget *window(const QString &key) const;
    QString group(const QString &key) const;
    QString hintKey(const QString &key) const;
    /// Opens the window, brings it to the front if it is open behind another tab, and closes it if
    /// it is in front; owned by its dock. Null for an unknown key.
    QAction *toggleAction(const QString &key) const;
    /// Opens the window and brings its tab to the front.
    void show(const QString &key);

    /// Places and visibility of all windows.
    QByteArray saveState() const;
    /// Puts windows back to their saved places. Windows that the state does not know keep their
    /// default place. \returns false, with nothing changed, if the bytes are no such state
    bool restoreState(const QByteArray &state);
    /// Puts every window to its default place.
    void resetLayout();
    /// Hides everything, windows that float on their own included.
    void hideAll();

signals:
    /// A window was added (or removed): the list of windows has changed.
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
