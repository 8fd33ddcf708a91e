#include "benchmarks/Report.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace Benchmarks {

void report(const std::string& name, double value, const std::string& unit, std::optional<double> aim) {
    std::printf("%s\t%.3f\t%s\t", name.c_str(), value, unit.c_str());
    if (aim)
        std::printf("%g", *aim);
    std::printf("\n");
    std::fflush(stdout);
}

void reportSpread(const std::string& name, const std::vector<double>& values, const std::string& unit,
                  std::optional<double> aim) {
    report(name + ", median", percentile(values, 50), unit);
    report(name + ", 99th percentile", percentile(values, 99), unit, aim);
    report(name + ", max", percentile(values, 100), unit);
}

double percentile(std::vector<double> values, double percent) {
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    const double rank = std::ceil(percent / 100 * static_cast<double>(values.size()));
    const auto index = static_cast<std::size_t>(std::max(rank - 1, 0.0));
    return values[std::min(index, values.size() - 1)];
}

}
