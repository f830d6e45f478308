#pragma once

#include <QByteArray>
#include <QTemporaryFile>

/// Redirects a standard stream to a file while it exists. It redirects the file descriptor, so it
/// captures output of printf, std::cout, QTextStream and other libraries.
class kavoConsoleCapture
{
public:
    enum Stream { StandardOutput = 1, StandardError = 2 };

    explicit kavoConsoleCapture(Stream stream);
    ~kavoConsoleCapture();
    kavoConsoleCapture(const kavoConsoleCapture &) = delete;
    kavoConsoleCapture &operator=(const kavoConsoleCapture &) = delete;

    /// Returns everything that was written since construction.
    QByteArray text();

private:
    static void flush();

    Stream m_stream;
    QTemporaryFile m_file;
    int m_original;
};
