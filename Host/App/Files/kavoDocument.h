#pragma once

#include "Scene/kavoEditDetector.h"

#include <QObject>
#include <QString>
#include <QStringList>

class kavoOpenScene;

/// The open scene as a document: its file, and whether it was modified since it was saved.
class kavoDocument : public QObject
{
    Q_OBJECT

public:
    explicit kavoDocument(kavoOpenScene &scene, QObject *parent = nullptr);

    /// To be called when another scene was opened from these files.
    /// \param partlyRead files of which only a part could be read. The scene is never saved in
    ///     them, because that would destroy the rest.
    void setFiles(const QStringList &files, const QStringList &partlyRead = {});

    /// The file that the scene is saved in. Empty if it was opened from another format, from
    /// several files or from a file that was only partly read.
    QString file() const { return m_file; }
    /// The names of the files that the scene was opened from.
    QString title() const;
    /// A default file name for a save dialog.
    QString suggestedFile() const;
    bool isModified() const { return m_isModified; }

    /// To be called before another scene replaces this one. The document counts as unmodified until
    /// the next edit.
    void discardEdits();
    /// Undoes discardEdits() because the scene stays. Saving in between ends its effect.
    void keepEdits();

    /// \throws kavoTaskError, also for a partly read file. Scene and file are then unchanged.
    void save(const QString &file);

signals:
    /// Emitted when title, file or modification changes.
    void changed();

private:
    void beginWith(const QStringList &files);
    bool wasPartlyRead(const QString &file) const;
    void setModified(bool isModified);

    kavoOpenScene &m_scene;
    kavoEditDetector m_edits;
    QStringList m_files;
    QStringList m_partlyRead; ///< kept when the scene is saved elsewhere
    QString m_file;
    bool m_isModified = false;
    bool m_hasDiscardedEdits = false;
};
