#include <OpenSG/OSGLogBuf.h>

#include <cstdio>

OSG_BEGIN_NAMESPACE

void LogBuf::setFile(const Char8 *fileName)
{
    _file.close();
    if (fileName) {
        _file.open(fileName);
    }
}

void LogBuf::setCallback(Callback callback, void *clientData, bool flushData)
{
    _callback = callback;
    _clientData = clientData;
    const std::string kept = std::move(_kept);
    _kept.clear();
    if (callback && flushData && !kept.empty()) {
        callback(kept.data(), static_cast<Int32>(kept.size()), clientData);
    }
}

LogBuf::int_type LogBuf::overflow(int_type character)
{
    if (!traits_type::eq_int_type(character, traits_type::eof())) {
        const char data = traits_type::to_char_type(character);
        xsputn(&data, 1);
    }
    return traits_type::not_eof(character);
}

std::streamsize LogBuf::xsputn(const char *data, std::streamsize size)
{
    switch (_type) {
    case LOG_NONE:
        break;
    case LOG_STDOUT:
        std::fwrite(data, 1, static_cast<std::size_t>(size), stdout);
        break;
    case LOG_STDERR:
        std::fwrite(data, 1, static_cast<std::size_t>(size), stderr);
        break;
    case LOG_FILE:
        _file.write(data, size);
        break;
    case LOG_BUFFER:
        writeBuffer(data, size);
        break;
    }
    return size;
}

int LogBuf::sync()
{
    if (_type == LOG_STDOUT) {
        std::fflush(stdout);
    }
    _file.flush();
    return 0;
}

void LogBuf::writeBuffer(const char *data, std::streamsize size)
{
    if (_callback) {
        _callback(data, static_cast<Int32>(size), _clientData);
    } else {
        _kept.append(data, static_cast<std::size_t>(size));
    }
}

OSG_END_NAMESPACE
