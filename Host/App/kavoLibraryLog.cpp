#include "kavoLibraryLog.h"

#include <OpenSG/OSGLog.h>

#include <kavoLog.h>

kavoLibraryLog::kavoLibraryLog()
{
    osg::osgLog().setLogType(osg::LOG_BUFFER, true);
    osg::osgLog().getLogBuf().setCallback(append, this);
}

kavoLibraryLog::~kavoLibraryLog()
{
    osg::osgLog().getLogBuf().setCallback(nullptr);
    osg::osgLog().setLogType(osg::LOG_STDERR, true);
    if (!m_text.isEmpty())
        kavoLog::warning("%s", m_text.constData());
}

// The library hands over pieces of lines.
void kavoLibraryLog::append(const char *data, int size, void *log)
{
    QByteArray &text = static_cast<kavoLibraryLog *>(log)->m_text;
    text.append(data, size);
    for (int end = text.indexOf('\n'); end >= 0; end = text.indexOf('\n')) {
        kavoLog::warning("%s", text.left(end).constData());
        text.remove(0, end + 1);
    }
}
