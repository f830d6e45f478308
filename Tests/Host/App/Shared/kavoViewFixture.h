#pragma once

#include "Scene/kavoChangeMonitor.h"
#include "Scene/kavoSceneEvents.h"
#include "Scene/kavoSceneIndex.h"

/// What the views of the scene stand on, for tests that make views of their own.
struct kavoViewFixture
{
    kavoChangeMonitor monitor;
    kavoSceneEvents events;
    kavoSceneIndex index { events, monitor };
};
