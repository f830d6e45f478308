#include <OpenSG/OSGLog.h>

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <vector>

OSG_BEGIN_NAMESPACE

namespace {

constexpr const Char8 *levelNames[] = { "LOG", "FATAL", "WARNING", "NOTICE", "INFO", "DEBUG" };

// An environment variable overrides the program, unless the program uses force.
bool isFixed(const Char8 *variable, bool force)
{
    return !force && std::getenv(variable);
}

UInt32 numberFrom(const Char8 *variable)
{
    return static_cast<UInt32>(NumberText::readUnsigned(std::getenv(variable)));
}

} // namespace

Log::Log()
    : std::ostream(nullptr)
    , _silence(nullptr)
{
    rdbuf(&_buffer);
    if (std::getenv("OSG_LOG_LEVEL")) {
        setLogLevel(static_cast<LogLevel>(numberFrom("OSG_LOG_LEVEL")), true);
    }
    if (std::getenv("OSG_LOG_HEADER")) {
        setHeaderElem(numberFrom("OSG_LOG_HEADER"), true);
    }
    if (const Char8 *fileName = std::getenv("OSG_LOG_FILE")) {
        setLogFile(fileName, true);
    }
    if (std::getenv("OSG_LOG_TYPE")) {
        setLogType(static_cast<LogType>(numberFrom("OSG_LOG_TYPE")), true);
    }
}

void Log::setLogLevel(LogLevel level, bool force)
{
    if (!isFixed("OSG_LOG_LEVEL", force)) {
        _level = level;
    }
}

void Log::setLogType(LogType type, bool force)
{
    if (!isFixed("OSG_LOG_TYPE", force)) {
        _buffer.setType(type);
    }
}

void Log::setLogFile(const Char8 *fileName, bool force)
{
    if (!isFixed("OSG_LOG_FILE", force)) {
        _buffer.setFile(fileName);
        setLogType(LOG_FILE, force);
    }
}

void Log::setHeaderElem(UInt32 mask, bool force)
{
    if (!isFixed("OSG_LOG_HEADER", force)) {
        _headerMask = mask;
    }
}

std::ostream &Log::stream(LogLevel level)
{
    return checkLevel(level) ? static_cast<std::ostream &>(*this) : _silence;
}

std::ostream &Log::startLine(LogLevel level, const Char8 *file, UInt32 line)
{
    std::ostream &target = stream(level);
    if (_headerMask & LOG_TYPE_HEADER) {
        target << levelNames[level] << ":  ";
    }
    if (_headerMask & LOG_FILE_HEADER) {
        target << file << ' ';
    }
    if (_headerMask & LOG_LINE_HEADER) {
        target << line << ' ';
    }
    return target;
}

void Log::doLog(const Char8 *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    va_list forLength;
    va_copy(forLength, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, forLength);
    va_end(forLength);
    std::vector<Char8> text(static_cast<std::size_t>(length > 0 ? length : 0) + 1);
    std::vsnprintf(text.data(), text.size(), format, arguments);
    va_end(arguments);
    write(text.data(), static_cast<std::streamsize>(text.size() - 1)).flush();
}

// Never destroyed, because destructors of static objects write to the log.
Log &osgLog()
{
    static Log *const log = new Log;
    return *log;
}

std::ostream &endLog(std::ostream &stream)
{
    return stream << std::endl;
}

OSG_END_NAMESPACE
