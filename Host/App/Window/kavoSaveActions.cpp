#include "Window/kavoSaveActions.h"

#include "Basics/kavoTry.h"
#include "Files/kavoDocument.h"
#include "Files/kavoOsgWriter.h"

#include <QApplication>
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>

namespace {

struct WaitCursor
{
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
};

} // namespace

kavoSaveActions::kavoSaveActions(kavoDocument &document, QWidget *window, QMenu *fileMenu)
    : QObject(window)
    , m_document(document)
    , m_window(window)
{
    fileMenu->addAction(tr("&Save"), this, &kavoSaveActions::save, QKeySequence::Save);
    fileMenu->addAction(tr("Save &As..."), this, &kavoSaveActions::saveAs,
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
}

bool kavoSaveActions::mayClose()
{
    if (!m_document.isModified())
        return true;
    const QMessageBox::StandardButton answer
        = QMessageBox::warning(m_window, QApplication::applicationDisplayName(),
            tr("'%1' has changes that are not saved.").arg(m_document.title()),
            QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}

bool kavoSaveActions::save()
{
    return m_document.file().isEmpty() ? saveAs() : saveTo(m_document.file());
}

bool kavoSaveActions::saveAs()
{
    QFileDialog dialog(m_window, tr("Save Scene"), m_document.suggestedFile(),
        tr("Scenes (*.%1)").arg(kavoOsgWriter::suffix()));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(kavoOsgWriter::suffix());
    dialog.selectFile(m_document.suggestedFile());
    return dialog.exec() == QDialog::Accepted && saveTo(dialog.selectedFiles().first());
}

bool kavoSaveActions::saveTo(const QString &file)
{
    const auto reason = kavoTry([&] {
        const WaitCursor cursor;
        m_document.save(file);
    });
    if (reason) {
        emit failed(*reason);
        return false;
    }
    emit saved(file);
    return true;
}
