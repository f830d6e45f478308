#pragma once

#include <QIcon>
#include <QString>

class QMenu;
class QWidget;

class QKAVODockWindowManager
{
public:
    void add(const char *key, const QString &group, QWidget *widget, const QString &hintKey,
        const QIcon &icon, const QString &title, Qt::DockWidgetArea area, bool visible,
        QMenu *menu);
};
