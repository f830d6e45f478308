#pragma once

#include <OpenSG/OSGLog.h>

#include <QByteArray>

/// Lets what OpenSG logs appear in the host's log, as long as it lives. Elsewhere it goes to
/// standard error, where users of the window do not see it. One at a time. Warnings are logged
/// whatever the level of the library's log is.
class kavoLibraryLog
{
public:
    kavoLibraryLog();
    ~kavoLibraryLog();
    kavoLibraryLog(const kavoLibraryLog &) = delete;
    kavoLibraryLog &operator=(const kavoLibraryLog &) = delete;

    /// Whether something was said so far that is more than information: what a reader says of a
    /// file that it does not understand is at any of the other levels.
    bool hasComplaints() const;

private:
    static void append(const char *data, int size, void *log);

    const osg::LogLevel m_level; ///< as it was before
    QByteArray m_text; ///< of a line that has not ended
    bool m_hasComplaints = false;
};
