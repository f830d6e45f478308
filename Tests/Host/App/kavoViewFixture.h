#pragma once

#include <kavoChangeMonitor.h>
#include <kavoSceneEvents.h>
#include <kavoSceneIndex.h>

/// What the views of the scene stand on, for tests that make views of their own.
struct kavoViewFixture
{
    kavoChangeMonitor monitor;
    kavoSceneEvents events;
    kavoSceneIndex index { events, monitor };
};
