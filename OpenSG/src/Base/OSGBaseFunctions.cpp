#include <OpenSG/OSGBaseFunctions.h>

#include "Base/OSGStartupPhases.h"

#include <OpenSG/OSGLog.h>

#include <cstdlib>
#include <utility>
#include <vector>

OSG_BEGIN_NAMESPACE

SystemState GlobalSystemState = Startup;

namespace {

constexpr auto phaseCount = static_cast<std::size_t>(StartupPhase::Count);
typedef std::vector<bool (*)()> Functions;

struct PhaseLists
{
    Functions start[phaseCount];
    Functions stop[phaseCount];
};

// Static objects of any translation unit add to the lists, and osgExit may run after static
// objects have been destroyed. So the lists are made at their first use and never destroyed.
PhaseLists &phaseLists()
{
    static PhaseLists *const lists = new PhaseLists;
    return *lists;
}

// The list is emptied before the loop, because a function may add to it.
bool runAll(Functions &functions)
{
    const Functions toRun = std::exchange(functions, {});
    for (bool (*function)() : toRun) {
        if (!function()) {
            return false;
        }
    }
    return true;
}

bool runReversed(Functions &functions)
{
    Functions reversed(functions.rbegin(), functions.rend());
    functions.clear();
    return runAll(reversed);
}

void checkVersion(UInt16 major, UInt16 minor, UInt16 release)
{
    if (major != OSG_MAJOR_VERSION) {
        SFATAL << "Compiled for major version " << major << ", this is version "
               << OSG_MAJOR_VERSION << endLog;
        std::exit(1);
    }
    if (minor != OSG_MINOR_VERSION) {
        SWARNING << "Compiled for minor version " << minor << ", this is version "
                 << OSG_MINOR_VERSION << endLog;
    } else if (release != OSG_RELEASE_VERSION) {
        SNOTICE << "Compiled for release " << release << ", this is release " << OSG_RELEASE_VERSION
                << endLog;
    }
}

void stopAtProcessEnd()
{
    osgExit();
}

} // namespace

void addStartFunction(StartupPhase phase, InitFuncF function)
{
    phaseLists().start[static_cast<std::size_t>(phase)].push_back(function);
}

void addStopFunction(StartupPhase phase, ExitFuncF function)
{
    phaseLists().stop[static_cast<std::size_t>(phase)].push_back(function);
}

void addInitFunction(InitFuncF initFunc)
{
    addStartFunction(StartupPhase::Running, initFunc);
}

void addPreMPInitFunction(InitFuncF initFunc)
{
    addStartFunction(StartupPhase::BeforeThreads, initFunc);
}

void addSystemExitFunction(ExitFuncF exitFunc)
{
    addStopFunction(StartupPhase::Running, exitFunc);
}

void addPostMPExitFunction(ExitFuncF exitFunc)
{
    addStopFunction(StartupPhase::BeforeThreads, exitFunc);
}

bool osgInit(Int32, Char8 **, UInt16 major, UInt16 minor, UInt16 release, bool, bool, bool)
{
    checkVersion(major, minor, release);
    loadSharedObjects();
    for (Functions &functions : phaseLists().start) {
        if (!runAll(functions)) {
            return false;
        }
    }
    if (GlobalSystemState != Running) {
        GlobalSystemState = Running;
        std::atexit(stopAtProcessEnd);
    }
    return true;
}

bool osgExit()
{
    if (GlobalSystemState != Running) {
        return true;
    }
    GlobalSystemState = Shutdown;
    for (std::size_t phase = phaseCount; phase-- > 0;) {
        if (!runReversed(phaseLists().stop[phase])) {
            return false;
        }
    }
    return true;
}

OSG_END_NAMESPACE
