#pragma once

#include <QByteArray>
#include <QTemporaryFile>

/// Redirects a standard stream to a file for as long as it lives. It works on the file descriptor,
/// so it sees what printf, std::cout, child libraries and QTextStream write alike.
class kavoConsoleCapture
{
public:
    enum Stream { StandardOutput = 1, StandardError = 2 };

    explicit kavoConsoleCapture(Stream stream);
    ~kavoConsoleCapture();
    kavoConsoleCapture(const kavoConsoleCapture &) = delete;
    kavoConsoleCapture &operator=(const kavoConsoleCapture &) = delete;

    /// Everything written since construction.
    QByteArray text();

private:
    static void flush();

    Stream m_stream;
    QTemporaryFile m_file;
    int m_original;
};
