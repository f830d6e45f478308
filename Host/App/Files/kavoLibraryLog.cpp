#include "Files/kavoLibraryLog.h"

#include <kavoLog.h>

#include <algorithm>
#include <iterator>

namespace {

struct Level
{
    const char *header;
    void (*write)(const char *format, ...);
};

constexpr Level levels[] = {
    { "FATAL:  ", kavoLog::error },
    { "WARNING:  ", kavoLog::warning },
    { "NOTICE:  ", kavoLog::info },
    { "INFO:  ", kavoLog::info },
    { "DEBUG:  ", kavoLog::info },
    { "LOG:  ", kavoLog::info },
};

// Lines without a header of a level count as warnings.
void write(const QByteArray &line)
{
    for (const Level &level : levels) {
        if (line.startsWith(level.header))
            return level.write("%s", line.constData() + qstrlen(level.header));
    }
    kavoLog::warning("%s", line.constData());
}

// A message about an unusual first line of a file is harmless: everything is read.
bool isComplaint(const QByteArray &line)
{
    constexpr const char *harmless[] = { "NOTICE:", "INFO:", "DEBUG:", "LOG:  File begins with " };
    return std::none_of(std::begin(harmless), std::end(harmless),
        [&](const char *start) { return line.startsWith(start); });
}

} // namespace

kavoLibraryLog::kavoLibraryLog()
    : m_level(osg::osgLog().getLogLevel())
{
    osg::osgLog().setLogLevel(std::max(m_level, osg::LOG_WARNING), true);
    osg::osgLog().setLogType(osg::LOG_BUFFER, true);
    osg::osgLog().getLogBuf().setCallback(append, this);
}

kavoLibraryLog::~kavoLibraryLog()
{
    osg::osgLog().getLogBuf().setCallback(nullptr);
    osg::osgLog().setLogType(osg::LOG_STDERR, true);
    osg::osgLog().setLogLevel(m_level, true);
    if (!m_text.isEmpty())
        write(m_text);
}

bool kavoLibraryLog::hasComplaints() const
{
    return m_hasComplaints || (!m_text.isEmpty() && isComplaint(m_text));
}

// The library passes pieces of lines.
void kavoLibraryLog::append(const char *data, int size, void *log)
{
    auto &self = *static_cast<kavoLibraryLog *>(log);
    QByteArray &text = self.m_text;
    text.append(data, size);
    for (int end = text.indexOf('\n'); end >= 0; end = text.indexOf('\n')) {
        write(text.left(end));
        self.m_hasComplaints = self.m_hasComplaints || isComplaint(text.left(end));
        text.remove(0, end + 1);
    }
}
