#pragma once

#include <QCoreApplication>
#include <QString>
#include <QTemporaryFile>

/// An output file that is written completely or not at all. The content goes to a temporary file in
/// the target's folder, which replaces the target at the end.
///
/// A target that is not a regular file, such as a pipe or a device, is written directly. A standard
/// stream that is redirected to a regular file (/dev/stdout) is rejected, because replacing that
/// file would lose other output.
class kavoOutputFile
{
    Q_DECLARE_TR_FUNCTIONS(kavoOutputFile)

public:
    /// \throws kavoTaskError if the target cannot be written
    explicit kavoOutputFile(const QString &target);
    /// Removes the temporary file unless it was committed.
    ~kavoOutputFile() = default;

    /// The path to write to. A temporary file exists there and is empty.
    QString path() const { return m_path; }

    /// Flushes the temporary file to disk and replaces the target with it, so that a power failure
    /// leaves either the old or the new content. The permissions of the target stay.
    /// \throws kavoTaskError
    void commit();

    /// Reports an error that the writer detected. \param error an errno value
    [[noreturn]] void fail(int error) const;

private:
    void createTemporary();
    void flush(const QByteArray &path) const;
    [[noreturn]] void fail(const QString &reason) const;

    QString m_target;
    QString m_path;
    QTemporaryFile m_temporary;
};
