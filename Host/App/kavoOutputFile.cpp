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

}

kavoOutputFile::kavoOutputFile(const QString &target)
    : m_target(target)
{
    const QFileInfo info(target);
    if (info.isDir())
        fail(EISDIR);
    if (info.exists() && !info.isWritable())
        fail(EACCES);
    if (info.exists())
        m_target = info.canonicalFilePath(); // a link stays a link
    if (info.exists() && !info.isFile())
        m_path = m_target;
    else
        createTemporary();
}

void kavoOutputFile::createTemporary()
{
    m_temporary.setFileTemplate(m_target + QStringLiteral(".XXXXXX"));
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
