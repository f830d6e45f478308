#pragma once

#include <OpenSG/OSGBaseTypes.h>

OSG_BEGIN_NAMESPACE

/// A time in seconds.
typedef Real64 Time;

/// Seconds since the epoch, with the resolution of the system's clock.
Time getSystemTime();

OSG_END_NAMESPACE
