#pragma once

#include "Scene/kavoSceneEdits.h"

#include <QObject>
#include <QString>
#include <QStringList>

class kavoOpenScene;

/// The open scene as a document: the file that it is saved in, and whether it has changed since.
class kavoDocument : public QObject
{
    Q_OBJECT

public:
    explicit kavoDocument(kavoOpenScene &scene, QObject *parent = nullptr);

    /// Another scene is open, which came of these files. Some of them may hold more than what could
    /// be read, which saving the scene there would destroy, also after it was saved elsewhere.
    void setFiles(const QStringList &files, const QStringList &partlyRead = {});

    /// Where it is saved; empty as long as it is not: files of other formats, and those that were
    /// read in part, are never written to.
    QString file() const { return m_file; }
    /// What to call it: the names of its files.
    QString title() const;
    /// A name for the file to save it in.
    QString suggestedFile() const;
    bool isModified() const { return m_isModified; }

    /// The scene makes way for another, with its edits so far: it counts as unmodified until it is
    /// edited again.
    void discardEdits();
    /// It stays after all, and so do the edits, unless they have been saved meanwhile.
    void keepEdits();

    /// \throws kavoTaskError, also for a file that was read in part; then everything is as before
    void save(const QString &file);

signals:
    /// Title, file or modification.
    void changed();

private:
    void beginWith(const QStringList &files);
    bool wasPartlyRead(const QString &file) const;
    void setModified(bool isModified);

    kavoOpenScene &m_scene;
    kavoSceneEdits m_edits;
    QStringList m_files;
    QStringList m_partlyRead; ///< of the files opened, whatever the scene is saved in since
    QString m_file;
    bool m_isModified = false;
    bool m_hasDiscardedEdits = false;
};
