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
    /// \param window parent of this object and of its dialogs
    kavoExportActions(QWidget *window, QMenu *fileMenu);

    /// Runs a task with a progress dialog that can cancel it.
    /// \param task ends early if its monitor cancels it, throws a std::exception if it fails
    void run(const QString &title, const std::function<void(const kavoMonitor &)> &task);
    /// Shows what became of an import.
    void show(const kavoTableImport::Report &report);

signals:
    void failed(const QString &message);

private:
    void exportValuePairs();
    void exportTable();
    void importTable();
    /// Where to export to, empty if the user cancels.
    QString askForFile(const QString &title, kavoTableOptions::Format format);

    QWidget *m_window;
};
