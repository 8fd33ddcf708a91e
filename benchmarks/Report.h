// What a benchmark prints that measures more than the time of one operation: rows for the table, each a case, a number,
// its unit and what it should stay below.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace Benchmarks {

// Prints a row.
void report(const std::string& name, double value, const std::string& unit, std::optional<double> aim = std::nullopt);

// Prints the median, the 99th percentile and the largest of some values. The aim is for the percentile.
void reportSpread(const std::string& name, const std::vector<double>& values, const std::string& unit,
                  std::optional<double> aim = std::nullopt);

// The value that so many of 100 values are not above; percent is 0..100. 0 without values.
double percentile(std::vector<double> values, double percent);

}
