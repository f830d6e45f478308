#include <OpenSG/OSGThread.h>

#include <OpenSG/OSGThreadManager.h>

#include "Base/OSGStartupPhases.h"

#include <cstring>

OSG_BEGIN_NAMESPACE

namespace {

const StartupRegistration threads(
    StartupPhase::Threads, ThreadManager::initialize, ThreadManager::terminate);

}

thread_local PThreadBase *PThreadBase::_current = nullptr;
Thread *ThreadManager::_mainThread = nullptr;

PThreadBase::PThreadBase(const Char8 *name)
    : _name(name)
    , _changeList(new ChangeList)
{
    addRefP(_changeList);
}

PThreadBase::~PThreadBase()
{
    subRefP(_changeList);
}

ChangeList *PThreadBase::getCurrentChangeList()
{
    return _current ? _current->_changeList : nullptr;
}

Thread *Thread::find(const Char8 *szName)
{
    Thread *main = ThreadManager::getMainThread();
    return main && szName && std::strcmp(main->getCName(), szName) == 0 ? main : nullptr;
}

bool ThreadManager::initialize()
{
    _mainThread = new Thread("OSGMain");
    Thread::_current = _mainThread;
    return true;
}

bool ThreadManager::terminate()
{
    Thread::_current = nullptr;
    delete _mainThread;
    _mainThread = nullptr;
    return true;
}

OSG_END_NAMESPACE
