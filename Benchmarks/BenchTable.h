#pragma once

#include <string>

/// Writes the results to standard output, one line per call. The cells of a line are separated by
/// tabs: case, ours, baseline, ratio, goal, and "met" or "not met". An empty cell holds a dash.
/// Only ratios have goals. `scripts/bench` turns the lines into one table.
namespace BenchTable {

/// A case name with the number of its rows in place of "%d".
std::string named(const char *format, int rows);

/// Two times in milliseconds. The goal is met if ours is at least `goal` times as fast.
void faster(const std::string &name, double ours, double baseline, double goal);

/// Two figures in `unit`. The goal is met if ours is at most `goal` times the baseline.
void atMost(const std::string &name, double ours, double baseline, double goal, const char *unit);

/// A figure without baseline and goal.
void figure(const std::string &name, double ours, const char *unit);

}
