#pragma once

#include <OpenSG/OSGPThreadBase.h>

OSG_BEGIN_NAMESPACE

/// A named thread of the scene graph. osgInit makes one for its caller, called "OSGMain".
class Thread : public ThreadBase
{
public:
    /// NULL where getCurrentChangeList() is.
    static ThreadBase *getCurrent() { return _current; }
    /// The thread of this name; NULL if there is none.
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
