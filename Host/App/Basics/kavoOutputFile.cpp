#include "Basics/kavoOutputFile.h"

#include "Basics/kavoTaskError.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

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

constexpr int maximumOfLinks = 40; // the system's limit

// Links are followed, also to a file that does not exist yet.
QString linkedFile(const QString &file)
{
    QFileInfo info(file);
    for (int links = 0; links < maximumOfLinks && info.isSymLink(); ++links)
        info.setFile(info.symLinkTarget());
    return info.filePath();
}

// /dev/stdout, for example, is a link through /proc to the file that it is redirected to.
bool isOpenStream(const QString &file)
{
    QFileInfo info(file);
    for (int links = 0; links < maximumOfLinks && info.isSymLink(); ++links) {
        if (info.dir().canonicalPath().startsWith(QLatin1String("/proc/")))
            return true;
        info.setFile(info.symLinkTarget());
    }
    return false;
}

} // namespace

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
    if (isOpenStream(target))
        fail(tr("It is redirected to a file: name the file instead"));
    m_target = linkedFile(target);
    if (QFileInfo(m_target).isSymLink())
        fail(ELOOP);
    createTemporary();
}

void kavoOutputFile::createTemporary()
{
    // A short name: the target's name may already have the greatest possible length.
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
    flush(path);
    if (::chmod(path, permissionsOf(m_target)) != 0
        || std::rename(path, QFile::encodeName(m_target)) != 0)
        fail(errno);
    m_temporary.setAutoRemove(false);
}

// Without it, a power failure after the renaming may leave an empty file. EINVAL means that the
// file system has nothing to flush.
void kavoOutputFile::flush(const QByteArray &path) const
{
    const int file = ::open(path, O_RDONLY | O_CLOEXEC);
    if (file < 0)
        fail(errno);
    const int error = ::fsync(file) == 0 || errno == EINVAL ? 0 : errno;
    ::close(file);
    if (error != 0)
        fail(error);
}

void kavoOutputFile::fail(int error) const
{
    fail(qt_error_string(error));
}

void kavoOutputFile::fail(const QString &reason) const
{
    throw kavoTaskError(tr("Cannot write '%1': %2").arg(m_target, reason));
}
