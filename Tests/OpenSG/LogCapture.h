#pragma once

#include <OpenSG/OSGLog.h>

#include <QByteArray>

/// What is logged during the life of a scope.
struct LogCapture
{
    LogCapture()
    {
        osg::osgLog().setLogType(osg::LOG_BUFFER, true);
        osg::osgLog().getLogBuf().setCallback(append, &text);
    }
    ~LogCapture()
    {
        osg::osgLog().getLogBuf().setCallback(nullptr);
        osg::osgLog().setLogType(osg::LOG_STDERR, true);
    }

    LogCapture(const LogCapture &) = delete;
    LogCapture &operator=(const LogCapture &) = delete;

    QByteArray text;

private:
    static void append(const osg::Char8 *data, osg::Int32 size, void *text)
    {
        static_cast<QByteArray *>(text)->append(data, size);
    }
};
