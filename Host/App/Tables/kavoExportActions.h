#pragma once

#include "Tables/kavoTableImport.h"
#include "Tables/kavoTaskProgress.h"

#include <QObject>
#include <functional>

class QMenu;
class QWidget;

/// The commands of the File menu that export and import value pairs.
class kavoExportActions : public QObject
{
    Q_OBJECT

public:
    /// Adds the commands at the end of the menu.
    /// \param window becomes the parent of this object and of its dialogs
    kavoExportActions(QWidget *window, QMenu *fileMenu);

    /// Runs a task with a progress dialog that can cancel it.
    /// \param task returns early if the monitor cancels it, and throws if it fails; failed() then
    /// says why
    void run(const QString &title, const std::function<void(const kavoMonitor &)> &task);
    /// Shows the result of an import.
    void show(const kavoTableImport::Report &report);

signals:
    void failed(const QString &message);

private:
    void exportValuePairs();
    void exportTable();
    void importTable();
    /// Returns the name of the file to write, empty if the user cancels.
    QString askForFile(const QString &title, kavoTableOptions::Format format);

    QWidget *m_window;
};
