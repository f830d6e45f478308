#include <OpenSG/OSGTime.h>

#include <chrono>

OSG_BEGIN_NAMESPACE

Time getSystemTime()
{
    const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration<Time>(sinceEpoch).count();
}

OSG_END_NAMESPACE
