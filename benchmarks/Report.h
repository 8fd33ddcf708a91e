// What a benchmark prints that measures more than the time of one operation: rows of the table, each with a case, a
// number, its unit and its upper limit.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace Benchmarks {

// Prints a row.
void report(const std::string& name, double value, const std::string& unit, std::optional<double> aim = std::nullopt);

// Prints the median, the 99th percentile and the largest of some values. The aim applies to the percentile.
void reportSpread(const std::string& name, const std::vector<double>& values, const std::string& unit,
                  std::optional<double> aim = std::nullopt);

// The value that this many percent of the values don't exceed; percent is 0..100. 0 without values.
double percentile(std::vector<double> values, double percent);

}
