#pragma once

#include <OpenSG/OSGPThreadBase.h>

OSG_BEGIN_NAMESPACE

/// A named thread of the scene graph. osgInit creates the thread "OSGMain" for its caller.
class Thread : public ThreadBase
{
public:
    /// Returns NULL on the threads for which getCurrentChangeList() returns NULL.
    static ThreadBase *getCurrent() { return _current; }
    /// Returns the thread of this name, or NULL if there is none.
    static Thread *get(const Char8 *szName) { return find(szName); }
    static Thread *find(const Char8 *szName);

private:
    friend class ThreadManager;

    explicit Thread(const Char8 *szName)
        : ThreadBase(szName)
    {
    }
};

OSG_END_NAMESPACE
