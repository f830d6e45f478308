#pragma once

/// One table of results on standard output. Each call writes one line, its cells separated by tabs:
/// case, ours, baseline, ratio, goal, and "met" or "not met". Cells that a case does not have hold
/// a dash. `scripts/bench` lines the columns up.
namespace BenchTable {

/// Times in milliseconds; the goal is to be at least `goal` times as fast as the baseline.
void faster(const char *name, double ours, double baseline, double goal);

/// The goal is to be at most `goal` times the baseline. The unit is "ms", "us", ...
void atMost(const char *name, double ours, double baseline, double goal, const char *unit);

/// A figure to be at most `goal`.
void below(const char *name, double ours, double goal, const char *unit);

/// A figure that is reported and has no goal.
void figure(const char *name, double ours, const char *unit);

}
