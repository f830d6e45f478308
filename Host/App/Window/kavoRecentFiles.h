#pragma once

#include <QMenu>
#include <QStringList>

/// The menu of the scenes opened last, newest first. They are kept in the application's settings.
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
