#include "Files/kavoDocument.h"

#include "Basics/kavoTaskError.h"
#include "Files/kavoOsgWriter.h"
#include "Scene/kavoOpenScene.h"

#include <kavoLog.h>
#include <kavoScenegraph.h>

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <utility>

kavoDocument::kavoDocument(kavoOpenScene &scene, QObject *parent)
    : QObject(parent)
    , m_scene(scene)
{
    connect(&m_scene, &kavoOpenScene::changed, this, [this](const kavoChanges &what) {
        if (!m_isModified && m_edits.areIn(what))
            setModified(true);
    });
}

void kavoDocument::setFiles(const QStringList &files, const QStringList &partlyRead)
{
    m_partlyRead = partlyRead;
    for (const QString &file : partlyRead)
        kavoLog::warning(
            "%s: not all of it was read, so it is not saved in place", qUtf8Printable(file));
    beginWith(files);
}

void kavoDocument::beginWith(const QStringList &files)
{
    const bool isSaved = files.size() == 1 && kavoOsgWriter::canSave(files.first())
        && !wasPartlyRead(files.first());
    m_files = files;
    m_file = isSaved ? files.first() : QString();
    m_scene.drainChanges(); // entries that loading has made
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
    const QString name
        = m_partlyRead.isEmpty() ? QStringLiteral("%1.%2") : QStringLiteral("%1-copy.%2");
    return first.dir().filePath(name.arg(first.completeBaseName(), kavoOsgWriter::suffix()));
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
    if (wasPartlyRead(file)) {
        throw kavoTaskError(tr("Not all of '%1' could be read, as the log says, and saving there "
                               "would destroy the rest. Save the scene in another file.")
                                .arg(file));
    }
    kavoOsgWriter::save(kavoScenegraph::getRoot(), file);
    beginWith({ file });
}

bool kavoDocument::wasPartlyRead(const QString &file) const
{
    const QString path = QFileInfo(file).canonicalFilePath();
    return !path.isEmpty()
        && std::any_of(m_partlyRead.begin(), m_partlyRead.end(),
            [&](const QString &other) { return QFileInfo(other).canonicalFilePath() == path; });
}

void kavoDocument::setModified(bool isModified)
{
    m_isModified = isModified;
    emit changed();
}
