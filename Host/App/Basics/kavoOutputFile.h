#pragma once

#include <QCoreApplication>
#include <QString>
#include <QTemporaryFile>

/// A file that comes into being as a whole or not at all: it is written under another name in the
/// folder of the target, which it replaces at the end.
///
/// A target that is no regular file, such as a pipe or a device, is written to directly. A stream
/// that is redirected to a regular file, such as /dev/stdout, is refused: what others write there
/// would be lost.
class kavoOutputFile
{
    Q_DECLARE_TR_FUNCTIONS(kavoOutputFile)

public:
    /// \throws kavoTaskError if there cannot be such a file
    explicit kavoOutputFile(const QString &target);
    /// Removes what was not committed.
    ~kavoOutputFile() = default;

    /// Where to write; the file exists and is empty.
    QString path() const { return m_path; }

    /// Puts what was written in the place of the target, whose permissions it takes over. It is on
    /// the disk by then, so that a power failure leaves the one or the other.
    /// \throws kavoTaskError
    void commit();

    /// For writers that found out themselves. \param error as errno
    [[noreturn]] void fail(int error) const;

private:
    void createTemporary();
    void flush(const QByteArray &path) const;
    [[noreturn]] void fail(const QString &reason) const;

    QString m_target;
    QString m_path;
    QTemporaryFile m_temporary;
};
