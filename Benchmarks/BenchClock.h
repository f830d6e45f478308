#pragma once

#include <algorithm>
#include <chrono>
#include <ctime>
#include <utility>
#include <vector>

/// Times of a piece of work in milliseconds.
namespace BenchClock {

/// The smallest value that more than that share of the values, from 0 to below 1, lies at or below.
/// Not for an empty list.
inline double quantile(std::vector<double> values, double share)
{
    const auto place = values.begin() + std::ptrdiff_t(share * double(values.size()));
    std::nth_element(values.begin(), place, values.end());
    return *place;
}

/// The upper one of the two in the middle if their number is even. Not for an empty list.
inline double median(std::vector<double> values)
{
    return quantile(std::move(values), 0.5);
}

/// Processor time of the calling thread. Unlike the time of the clock on the wall it does not
/// depend on what else the machine does; they are the same for work that waits for nothing.
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

/// What the user waits.
template <class Work> double wallTime(Work work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

/// What as many calls of a function return.
template <class Measure> std::vector<double> timesOf(int rounds, Measure measure)
{
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round)
        times.push_back(measure());
    return times;
}

/// The median of as many calls of a function that returns a time.
template <class Measure> double medianOf(int rounds, Measure measure)
{
    return median(timesOf(rounds, measure));
}

/// The median of as many runs.
template <class Work> double median(int rounds, Work work)
{
    return medianOf(rounds, [&] { return time(work); });
}

}
