#pragma once

#include <QByteArray>

/// Lets what OpenSG logs appear in the host's log, as long as it lives. Elsewhere it goes to
/// standard error, where users of the window do not see it. One at a time.
class kavoLibraryLog
{
public:
    kavoLibraryLog();
    ~kavoLibraryLog();
    kavoLibraryLog(const kavoLibraryLog &) = delete;
    kavoLibraryLog &operator=(const kavoLibraryLog &) = delete;

private:
    static void append(const char *data, int size, void *log);

    QByteArray m_text;
};
