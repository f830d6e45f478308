#pragma once

#include <OpenSG/OSGLog.h>

#include <QByteArray>

/// Redirects OpenSG's log to the host's log for its lifetime. Otherwise OpenSG logs to standard
/// error, which users of the window do not see. Warnings are logged at any log level of the
/// library. Only one object may exist at a time.
class kavoLibraryLog
{
public:
    kavoLibraryLog();
    ~kavoLibraryLog();
    kavoLibraryLog(const kavoLibraryLog &) = delete;
    kavoLibraryLog &operator=(const kavoLibraryLog &) = delete;

    /// Returns true if a message was logged that says that something could not be read or written.
    /// The library uses several levels for them; only notices, infos and debug output do not count.
    bool hasComplaints() const;

private:
    static void append(const char *data, int size, void *log);

    const osg::LogLevel m_level; ///< to be restored
    QByteArray m_text; ///< of the unfinished line
    bool m_hasComplaints = false;
};
