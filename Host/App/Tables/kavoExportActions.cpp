#include "Tables/kavoExportActions.h"

#include "Basics/kavoTry.h"
#include "Tables/kavoCsvCreatorExport.h"
#include "Tables/kavoTableExport.h"
#include "Tables/kavoValuePairDialog.h"

#include <kavoScenegraph.h>

#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QProgressDialog>

kavoExportActions::kavoExportActions(QWidget *window, QMenu *fileMenu)
    : QObject(window)
    , m_window(window)
{
    QMenu *exports = fileMenu->addMenu(tr("&Export"));
    exports->addAction(tr("&Value Pairs (CSV)..."), this, &kavoExportActions::exportValuePairs);
    exports->addAction(tr("&Table..."), this, &kavoExportActions::exportTable);
    fileMenu->addAction(tr("&Import Table..."), this, &kavoExportActions::importTable);
}

void kavoExportActions::exportValuePairs()
{
    kavoValuePairDialog dialog(kavoValuePairDialog::ExportValuePairs, m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString file = askForFile(dialog.windowTitle(), kavoTableOptions::Csv);
    if (file.isEmpty())
        return;
    run(dialog.windowTitle(), [&](const kavoMonitor &monitor) {
        kavoCsvCreatorExport::run(dialog.root(), file, dialog.options().takesAllNodes, monitor);
    });
}

void kavoExportActions::exportTable()
{
    kavoValuePairDialog dialog(kavoValuePairDialog::ExportTable, m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const kavoTableOptions options = dialog.options();
    const QString file = askForFile(dialog.windowTitle(), options.format);
    if (file.isEmpty())
        return;
    run(dialog.windowTitle(), [&](const kavoMonitor &monitor) {
        kavoTableExport::run(dialog.root(), file, options, monitor);
    });
}

void kavoExportActions::importTable()
{
    const QString file = QFileDialog::getOpenFileName(
        m_window, tr("Import Table"), QString(), tr("Tables (*.csv *.jsonl);;All files (*)"));
    if (file.isEmpty())
        return;
    kavoValuePairDialog dialog(kavoValuePairDialog::ImportTable, m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    kavoTableOptions options = dialog.options();
    options.format = kavoTableOptions::formatOf(file);
    run(dialog.windowTitle(), [&](const kavoMonitor &monitor) {
        const auto report = kavoTableImport::run(kavoScenegraph::getRoot(), file, options, monitor);
        if (report)
            show(*report);
    });
}

QString kavoExportActions::askForFile(const QString &title, kavoTableOptions::Format format)
{
    const bool isJson = format == kavoTableOptions::JsonLines;
    QFileDialog dialog(m_window, title, QString(),
        isJson ? tr("JSON Lines (*.jsonl)") : tr("Comma-separated values (*.csv)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(isJson ? QStringLiteral("jsonl") : QStringLiteral("csv"));
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().first() : QString();
}

void kavoExportActions::run(
    const QString &title, const std::function<void(const kavoMonitor &)> &task)
{
    QProgressDialog progress(title, tr("Cancel"), 0, 100, m_window);
    progress.setWindowModality(Qt::WindowModal);
    const auto monitor = [&](int percent) {
        progress.setValue(percent);
        return !progress.wasCanceled();
    };
    if (const auto reason = kavoTry([&] { task(monitor); }))
        emit failed(*reason);
}

void kavoExportActions::show(const kavoTableImport::Report &report)
{
    QString text = report.summary();
    if (!report.unplacedRows.isEmpty())
        text += '\n' + tr("Rows without a place in this scene: %1").arg(report.unplacedRows.size());
    auto *box = new QMessageBox(
        QMessageBox::Information, tr("Import Table"), text, QMessageBox::Ok, m_window);
    box->setDetailedText(report.unplacedRows.join('\n'));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}
