#pragma once

#include <OpenSG/OSGBaseFunctions.h>

OSG_BEGIN_NAMESPACE

/// osgInit runs the functions of one phase after the other, osgExit those of the matching phases
/// from last to first; within a phase start functions run in the order in which they were added
/// and stop functions in reverse.
enum class StartupPhase { BeforeThreads, Threads, ContainerTypes, Running, Count };

void addStartFunction(StartupPhase phase, InitFuncF function);
void addStopFunction(StartupPhase phase, ExitFuncF function);

/// Loads what preloadSharedObject and the environment name.
void loadSharedObjects();

/// A static object of this type adds to a phase; the layers above register themselves so.
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
