#pragma once

#include <QIcon>
#include <QStringList>
#include <QWidget>

class QMenu;

/// A host that offers modules the operations that the plug-in may use and no others. Its headers
/// in this folder take the place of the SDK's. It records what the plug-in calls.
namespace BareHost {

struct DockCall
{
    QString key;
    QString group;
    QWidget *widget;
    QString hintKey;
    QIcon icon;
    QString title;
    Qt::DockWidgetArea area;
    bool visible;
    QMenu *menu;
};

struct Calls
{
    QStringList modules; ///< name, group, mask and icon of each module
    QList<DockCall> docks;
    QStringList callbacks; ///< the names that are registered
};

Calls &calls();
QWidget &mainWindow();
/// The icon of a key. Equal icons have equal cache keys.
QIcon icon();

} // namespace BareHost
