#include "BenchTable.h"

#include <cstdio>

namespace {

const char *verdict(bool met)
{
    return met ? "met" : "not met";
}

}

std::string BenchTable::named(const char *format, int rows)
{
    char text[120];
    std::snprintf(text, sizeof text, format, rows);
    return text;
}

void BenchTable::faster(const std::string &name, double ours, double baseline, double goal)
{
    const double ratio = baseline / ours;
    std::printf("%s\t%.3g ms\t%.4g ms\t%.1f times faster\tat least %g\t%s\n", name.c_str(), ours,
        baseline, ratio, goal, verdict(ratio >= goal));
    std::fflush(stdout);
}

void BenchTable::atMost(
    const std::string &name, double ours, double baseline, double goal, const char *unit)
{
    const double ratio = ours / baseline;
    std::printf("%s\t%.3g %s\t%.3g %s\t%.2f\tat most %g\t%s\n", name.c_str(), ours, unit, baseline,
        unit, ratio, goal, verdict(ratio <= goal));
    std::fflush(stdout);
}

void BenchTable::figure(const std::string &name, double ours, const char *unit)
{
    std::printf("%s\t%.3g %s\t-\t-\t-\t-\n", name.c_str(), ours, unit);
    std::fflush(stdout);
}
