#pragma once

#include <algorithm>
#include <chrono>
#include <ctime>
#include <utility>
#include <vector>

/// Times of a piece of work in milliseconds.
namespace BenchClock {

/// The value at position `share` of the sorted list, for example 0.95 for the 95th percentile.
/// \param values not empty
/// \param share from 0 to below 1
inline double quantile(std::vector<double> values, double share)
{
    const auto place = values.begin() + std::ptrdiff_t(share * double(values.size()));
    std::nth_element(values.begin(), place, values.end());
    return *place;
}

/// For an even number of values, the upper one of the two in the middle.
/// \param values not empty
inline double median(std::vector<double> values)
{
    return quantile(std::move(values), 0.5);
}

/// Processor time of the calling thread. Other programs on the machine hardly change it. Use
/// wallTime() for work that waits.
template <class Work> double time(Work work)
{
    const auto now = [] {
        timespec time {};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return 1e3 * double(time.tv_sec) + 1e-6 * double(time.tv_nsec);
    };
    const double start = now();
    work();
    return now() - start;
}

/// Elapsed time, as the user waits.
template <class Work> double wallTime(Work work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

/// The results of `rounds` calls.
template <class Measure> std::vector<double> timesOf(int rounds, Measure measure)
{
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round)
        times.push_back(measure());
    return times;
}

/// The median of the times that `rounds` calls return.
template <class Measure> double medianOf(int rounds, Measure measure)
{
    return median(timesOf(rounds, measure));
}

/// The median processor time of `rounds` calls.
template <class Work> double median(int rounds, Work work)
{
    return medianOf(rounds, [&] { return time(work); });
}

}
