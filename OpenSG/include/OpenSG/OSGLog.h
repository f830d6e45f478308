#pragma once

#include <OpenSG/OSGLogBuf.h>

#include <ostream>

OSG_BEGIN_NAMESPACE

enum LogLevel {
    LOG_LOG = 0,
    LOG_FATAL = 1,
    LOG_WARNING = 2,
    LOG_NOTICE = 3,
    LOG_INFO = 4,
    LOG_DEBUG = 5
};

/// Parts of the header of a line in the log.
enum LogHeaderElem { LOG_TYPE_HEADER = 0x01, LOG_FILE_HEADER = 0x02, LOG_LINE_HEADER = 0x04 };

/// The log is a stream. Text that is inserted directly has no header and no level. The macros below
/// print a line of a level, with or without header. The environment variables OSG_LOG_LEVEL,
/// OSG_LOG_TYPE and OSG_LOG_HEADER (numbers) and OSG_LOG_FILE (a path) override the setters unless
/// `force` is true.
class Log : public std::ostream
{
public:
    Log();

    void setLogLevel(LogLevel level, bool force = false);
    LogLevel getLogLevel() const { return _level; }
    void setLogType(LogType type, bool force = false);
    /// Opens the file and makes it the log's target.
    void setLogFile(const Char8 *fileName, bool force = false);
    void setHeaderElem(UInt32 mask, bool force = false);
    LogBuf &getLogBuf() { return _buffer; }

    /// Returns true if lines of this level are printed.
    bool checkLevel(LogLevel level) const { return level <= _level; }

    /// Returns the stream for a line of this level: the log, or a stream that prints nothing.
    std::ostream &stream(LogLevel level);
    /// Prints the header and returns the same stream.
    std::ostream &startLine(LogLevel level, const Char8 *file, UInt32 line);

    /// Prints like printf, independent of the level.
    [[gnu::format(printf, 2, 3)]] void doLog(const Char8 *format, ...);

private:
    LogBuf _buffer;
    std::ostream _silence;
    LogLevel _level = LOG_WARNING;
    UInt32 _headerMask = LOG_TYPE_HEADER;
};

/// The log of the process.
Log &osgLog();

/// Ends the line.
std::ostream &endLog(std::ostream &stream);

OSG_END_NAMESPACE

#define OSG_LOG_LINE(level) osg::osgLog().startLine(level, __FILE__, __LINE__)
#define OSG_LOG_PRINTF(level, arguments)                                                           \
    do {                                                                                           \
        if (osg::osgLog().checkLevel(level)) {                                                     \
            OSG_LOG_LINE(level);                                                                   \
            osg::osgLog().doLog arguments;                                                         \
        }                                                                                          \
    } while (false)
#define OSG_LOG_PLAIN_PRINTF(level, arguments)                                                     \
    do {                                                                                           \
        if (osg::osgLog().checkLevel(level)) {                                                     \
            osg::osgLog().doLog arguments;                                                         \
        }                                                                                          \
    } while (false)

#define SLOG OSG_LOG_LINE(osg::LOG_LOG)
#define SFATAL OSG_LOG_LINE(osg::LOG_FATAL)
#define SWARNING OSG_LOG_LINE(osg::LOG_WARNING)
#define SNOTICE OSG_LOG_LINE(osg::LOG_NOTICE)
#define SINFO OSG_LOG_LINE(osg::LOG_INFO)

#define PLOG osg::osgLog().stream(osg::LOG_LOG)
#define PFATAL osg::osgLog().stream(osg::LOG_FATAL)
#define PWARNING osg::osgLog().stream(osg::LOG_WARNING)
#define PNOTICE osg::osgLog().stream(osg::LOG_NOTICE)
#define PINFO osg::osgLog().stream(osg::LOG_INFO)

#define FLOG(arguments) OSG_LOG_PRINTF(osg::LOG_LOG, arguments)
#define FFATAL(arguments) OSG_LOG_PRINTF(osg::LOG_FATAL, arguments)
#define FWARNING(arguments) OSG_LOG_PRINTF(osg::LOG_WARNING, arguments)
#define FNOTICE(arguments) OSG_LOG_PRINTF(osg::LOG_NOTICE, arguments)
#define FINFO(arguments) OSG_LOG_PRINTF(osg::LOG_INFO, arguments)

#define FPLOG(arguments) OSG_LOG_PLAIN_PRINTF(osg::LOG_LOG, arguments)
#define FPFATAL(arguments) OSG_LOG_PLAIN_PRINTF(osg::LOG_FATAL, arguments)
#define FPWARNING(arguments) OSG_LOG_PLAIN_PRINTF(osg::LOG_WARNING, arguments)
#define FPNOTICE(arguments) OSG_LOG_PLAIN_PRINTF(osg::LOG_NOTICE, arguments)
#define FPINFO(arguments) OSG_LOG_PLAIN_PRINTF(osg::LOG_INFO, arguments)

#ifdef OSG_DEBUG
#define FDEBUG(arguments) OSG_LOG_PRINTF(osg::LOG_DEBUG, arguments)
#define FPDEBUG(arguments) OSG_LOG_PLAIN_PRINTF(osg::LOG_DEBUG, arguments)
#else
#define FDEBUG(arguments)
#define FPDEBUG(arguments)
#endif
