#include "kavoDocument.h"

#include "kavoChangeMonitor.h"
#include "kavoSceneSaver.h"

#include <kavoScenegraph.h>

#include <QDir>
#include <QFileInfo>

#include <utility>

kavoDocument::kavoDocument(kavoChangeMonitor &changes, QObject *parent)
    : QObject(parent)
    , m_changes(changes)
{
    connect(&m_changes, &kavoChangeMonitor::changed, this, [this](const kavoChanges &what) {
        if (!m_isModified && m_edits.areIn(what))
            setModified(true);
    });
}

void kavoDocument::setFiles(const QStringList &files)
{
    const bool isSaved = files.size() == 1 && kavoSceneSaver::canSave(files.first());
    m_files = files;
    m_file = isSaved ? files.first() : QString();
    m_changes.drain(); // of what happened while it was built
    m_edits.reset();
    m_hasDiscardedEdits = false;
    setModified(false);
}

QString kavoDocument::title() const
{
    QStringList names;
    for (const QString &file : m_files)
        names << QFileInfo(file).fileName();
    return names.join(QStringLiteral(", "));
}

QString kavoDocument::suggestedFile() const
{
    if (!m_file.isEmpty())
        return m_file;
    const QFileInfo first(m_files.value(0, tr("Scene")));
    return first.dir().filePath(first.completeBaseName() + '.' + kavoSceneSaver::suffix());
}

void kavoDocument::discardEdits()
{
    if (!m_isModified)
        return;
    m_hasDiscardedEdits = true;
    setModified(false);
}

void kavoDocument::keepEdits()
{
    if (std::exchange(m_hasDiscardedEdits, false))
        setModified(true);
}

void kavoDocument::save(const QString &file)
{
    kavoSceneSaver::save(kavoScenegraph::getRoot(), file);
    setFiles({ file });
}

void kavoDocument::setModified(bool isModified)
{
    m_isModified = isModified;
    emit changed();
}
