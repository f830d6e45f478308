#include "BenchTable.h"

#include <cstdio>

namespace {

const char *verdict(bool met)
{
    return met ? "met" : "not met";
}

}

void BenchTable::faster(const char *name, double ours, double baseline, double goal)
{
    const double ratio = baseline / ours;
    std::printf("%s\t%.3g ms\t%.4g ms\t%.1f times faster\tat least %g\t%s\n", name, ours, baseline,
        ratio, goal, verdict(ratio >= goal));
    std::fflush(stdout);
}

void BenchTable::atMost(
    const char *name, double ours, double baseline, double goal, const char *unit)
{
    const double ratio = ours / baseline;
    std::printf("%s\t%.3g %s\t%.3g %s\t%.2f\tat most %g\t%s\n", name, ours, unit, baseline, unit,
        ratio, goal, verdict(ratio <= goal));
    std::fflush(stdout);
}

void BenchTable::below(const char *name, double ours, double goal, const char *unit)
{
    std::printf("%s\t%.3g %s\t-\t-\tat most %g %s\t%s\n", name, ours, unit, goal, unit,
        verdict(ours <= goal));
    std::fflush(stdout);
}

void BenchTable::figure(const char *name, double ours, const char *unit)
{
    std::printf("%s\t%.3g %s\t-\t-\t-\t-\n", name, ours, unit);
    std::fflush(stdout);
}
