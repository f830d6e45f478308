#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <QTreeWidget>

/// A plug-in that uses the Node Editor with the mouse of the X server. It opens the row "minFilter"
/// of a texture chunk, picks "GL_LINEAR" from the combo box, saves the scene with Ctrl+S if it is
/// an .osg file, and quits the host. After half a minute it quits the host with exit code 3.
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
