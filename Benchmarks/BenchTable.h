#pragma once

#include <string>

/// One table of results on standard output. Each call writes one line, its cells separated by tabs:
/// case, ours, baseline, ratio, goal, and "met" or "not met". Cells that a case does not have hold
/// a dash. `scripts/bench` makes a table of them.
namespace BenchTable {

/// The name of a case with the number of its rows in it.
std::string named(const char *format, int rows);

/// Times in milliseconds; the goal is to be at least `goal` times as fast as the baseline.
void faster(const std::string &name, double ours, double baseline, double goal);

/// The goal is to be at most `goal` times the baseline. The unit is "ms", "us", ...
void atMost(const std::string &name, double ours, double baseline, double goal, const char *unit);

/// A figure to be at most `goal`.
void below(const std::string &name, double ours, double goal, const char *unit);

/// A figure that is reported and has no goal.
void figure(const std::string &name, double ours, const char *unit);

}
