#pragma once

#include <OpenSG/OSGThread.h>

OSG_BEGIN_NAMESPACE

/// Manages the threads of the scene graph. osgInit and osgExit call it.
class ThreadManager
{
public:
    /// Creates the change list of the calling thread.
    static bool initialize();
    static bool terminate();

    static UInt32 getNumAspects() { return 1; }
    /// Returns NULL before osgInit and after osgExit.
    static Thread *getMainThread() { return _mainThread; }

private:
    static Thread *_mainThread;
};

OSG_END_NAMESPACE
