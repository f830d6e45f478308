#pragma once

#include <kavoLog.h>

#include <exception>
#include <string>

/// Runs a function and logs what it throws, after the name of the job, instead of passing it on:
/// an exception that leaves a slot or an event handler would end the host.
template <class Function> void kavoGuarded(const std::string &job, Function function)
{
    try {
        function();
    } catch (const std::exception &error) {
        kavoLog::error("%s failed: %s", job.c_str(), error.what());
    } catch (...) {
        kavoLog::error("%s failed with an unknown exception", job.c_str());
    }
}
