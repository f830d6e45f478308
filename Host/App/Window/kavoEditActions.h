#pragma once

#include <QObject>

class QAction;
class QMenu;

/// The commands of the Edit menu. They work on the selected node.
class kavoEditActions : public QObject
{
    Q_OBJECT

public:
    /// Adds the commands at the end of the menu, which owns this object.
    /// \param deletion the command that deletes the selected node
    kavoEditActions(QAction *deletion, QMenu *menu);

private:
    static void selectParent();
    static void selectNothing();
    static void copyName();
};
