#include "kavoOutputFile.h"

#include "kavoTaskError.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <sys/stat.h>

namespace {

mode_t permissionsOf(const QString &file)
{
    struct stat status;
    if (::stat(QFile::encodeName(file), &status) == 0)
        return status.st_mode & 07777;
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

// Links stay links, also those to a file that is not there yet.
QString linkedFile(const QString &file)
{
    constexpr int maximum = 40; // as the system allows
    QFileInfo info(file);
    for (int links = 0; links < maximum && info.isSymLink(); ++links)
        info.setFile(info.symLinkTarget());
    return info.filePath();
}

}

kavoOutputFile::kavoOutputFile(const QString &target)
    : m_target(target)
{
    const QFileInfo info(target);
    if (info.isDir())
        fail(EISDIR);
    if (info.exists() && !info.isWritable())
        fail(EACCES);
    if (info.exists() && !info.isFile()) {
        m_path = target;
        return;
    }
    m_target = linkedFile(target);
    if (QFileInfo(m_target).isSymLink())
        fail(ELOOP);
    createTemporary();
}

void kavoOutputFile::createTemporary()
{
    // The name is a short one: that of the target may be as long as names can be.
    m_temporary.setFileTemplate(QFileInfo(m_target).path() + QStringLiteral("/.kavo-XXXXXX"));
    if (!m_temporary.open())
        fail(m_temporary.errorString());
    m_path = m_temporary.fileName();
    m_temporary.close();
}

void kavoOutputFile::commit()
{
    if (m_path == m_target)
        return;
    const QByteArray path = QFile::encodeName(m_path);
    if (::chmod(path, permissionsOf(m_target)) != 0
        || std::rename(path, QFile::encodeName(m_target)) != 0)
        fail(errno);
    m_temporary.setAutoRemove(false);
}

void kavoOutputFile::fail(int error) const
{
    fail(qt_error_string(error));
}

void kavoOutputFile::fail(const QString &reason) const
{
    throw kavoTaskError(QCoreApplication::translate("kavoOutputFile", "Cannot write '%1': %2")
                            .arg(m_target, reason));
}
