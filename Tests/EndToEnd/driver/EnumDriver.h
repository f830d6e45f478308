#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <QTreeWidget>

/// Plug-in that works in the Node Editor as a user does, with the X server's mouse: opens the row
/// "minFilter" of a texture chunk, picks "GL_LINEAR" from its combo box, saves the scene with
/// Ctrl+S if it is in a file of its own, and ends the host. What cannot be done in half a minute
/// ends the host with exit code 3.
class EnumDriver : public QObject
{
    Q_OBJECT

public:
    EnumDriver();

private:
    using Step = bool (EnumDriver::*)();

    void next();
    bool openRow();
    bool openList();
    bool pickEntry();
    bool closeList();
    bool saveScene();
    bool endHost();

    static QTreeWidget *tree();
    static void click(const QWidget *widget, const QPoint &position);

    QTimer m_timer;
    QElapsedTimer m_time;
    std::size_t m_step = 0;
    bool m_isSaving = false;
};
