#pragma once

#include <OpenSG/OSGBaseFunctions.h>

OSG_BEGIN_NAMESPACE

/// osgInit runs the start functions phase by phase, in the order in which they were added. osgExit
/// runs the stop functions in reverse order of phases and of addition.
enum class StartupPhase { BeforeThreads, Threads, ContainerTypes, Running, Count };

void addStartFunction(StartupPhase phase, InitFuncF function);
void addStopFunction(StartupPhase phase, ExitFuncF function);

/// Loads the shared objects that preloadSharedObject and the environment name.
void loadSharedObjects();

/// A static object of this type adds functions to a phase. Later rooms register themselves in this
/// way.
struct StartupRegistration
{
    StartupRegistration(StartupPhase phase, InitFuncF start, ExitFuncF stop = nullptr)
    {
        addStartFunction(phase, start);
        if (stop) {
            addStopFunction(phase, stop);
        }
    }
};

OSG_END_NAMESPACE
