#pragma once

#include <OpenSG/OSGBaseTypes.h>

#include <fstream>
#include <streambuf>
#include <string>

OSG_BEGIN_NAMESPACE

enum LogType { LOG_NONE = 0, LOG_STDOUT = 1, LOG_STDERR = 2, LOG_FILE = 3, LOG_BUFFER = 4 };

/// The destination of the log. It is not buffered.
class LogBuf : public std::streambuf
{
public:
    /// `data` has no terminating zero.
    typedef void (*Callback)(const Char8 *data, Int32 size, void *clientData);

    void setType(LogType type) { _type = type; }
    /// Opens the file that LOG_FILE writes to; NULL closes it.
    void setFile(const Char8 *fileName);

    /// Sets the receiver of the text for LOG_BUFFER. Earlier text without a receiver has been kept.
    /// If `flushData` is true, the new receiver gets it; if false, it is dropped.
    void setCallback(Callback callback, void *clientData = nullptr, bool flushData = false);

protected:
    int_type overflow(int_type character) override;
    std::streamsize xsputn(const char *data, std::streamsize size) override;
    int sync() override;

private:
    void writeBuffer(const char *data, std::streamsize size);

    LogType _type = LOG_STDERR;
    std::ofstream _file;
    Callback _callback = nullptr;
    void *_clientData = nullptr;
    std::string _kept;
};

OSG_END_NAMESPACE
