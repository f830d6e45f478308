#pragma once

#include <QMenu>
#include <QStringList>

/// The menu of recently opened scenes, newest first. The list is kept in the settings.
class kavoRecentFiles : public QMenu
{
    Q_OBJECT

public:
    explicit kavoRecentFiles(QWidget *parent = nullptr);

    /// Puts a file at the top.
    void add(const QString &file);
    QStringList files() const;

signals:
    void chosen(const QString &file);

private:
    void setFiles(const QStringList &files);
    void rebuild();
};
