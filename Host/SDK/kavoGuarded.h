#pragma once

#include <kavoLog.h>

#include <exception>
#include <string>

/// Runs a function and logs its exceptions together with the name of the job. An exception that
/// left a slot or an event handler would end the host.
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
