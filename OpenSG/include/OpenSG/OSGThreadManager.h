#pragma once

#include <OpenSG/OSGThread.h>

OSG_BEGIN_NAMESPACE

/// Starts and ends the scene graph's view of threads; osgInit and osgExit call it.
class ThreadManager
{
public:
    /// Gives the calling thread a change list.
    static bool initialize();
    static bool terminate();

    static UInt32 getNumAspects() { return 1; }
    /// NULL before osgInit and after osgExit.
    static Thread *getMainThread() { return _mainThread; }

private:
    static Thread *_mainThread;
};

OSG_END_NAMESPACE
