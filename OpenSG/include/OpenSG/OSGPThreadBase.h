#pragma once

#include <OpenSG/OSGChangeList.h>

#include <string>

OSG_BEGIN_NAMESPACE

/// A thread that the scene graph knows.
class PThreadBase
{
public:
    PThreadBase(const PThreadBase &) = delete;
    PThreadBase &operator=(const PThreadBase &) = delete;

    /// There is only one aspect, so the result is 0 on every thread.
    static UInt32 getAspect() { return 0; }
    /// Returns NULL on threads that the scene graph does not know, before osgInit and after
    /// osgExit.
    static ChangeList *getCurrentChangeList();

    const Char8 *getCName() const { return _name.c_str(); }

protected:
    explicit PThreadBase(const Char8 *name);
    virtual ~PThreadBase();

    static thread_local PThreadBase *_current;

private:
    std::string _name;
    ChangeList *_changeList;
};

typedef PThreadBase ThreadBase;

OSG_END_NAMESPACE
