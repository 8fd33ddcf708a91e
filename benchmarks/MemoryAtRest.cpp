// How much memory does a started desk take while it does nothing?
#include "Platform/Sleep.h"
#include "Platform/TemporaryFolder.h"
#include "benchmarks/Report.h"
#include "benchmarks/RunningProgram.h"

#include <cstdio>
#include <fstream>
#include <sstream>

namespace {

// The sum of the lines of a process's memory map that start with this, in MiB.
double sumOf(int pid, const std::string& begin) {
    constexpr double KIBIBYTES_IN_MEBIBYTE = 1024;
    std::ifstream map("/proc/" + std::to_string(pid) + "/smaps_rollup");
    double sum = 0;
    for (std::string line; std::getline(map, line);) {
        if (!line.starts_with(begin))
            continue;
        std::istringstream words(line);
        std::string name;
        double kibibytes = 0;
        words >> name >> kibibytes;
        sum += kibibytes;
    }
    return sum / KIBIBYTES_IN_MEBIBYTE;
}

}

int main() {
    using namespace Benchmarks;
    constexpr int SECONDS_OF_REST = 3;
    const Platform::TemporaryFolder folder;
    RunningProgram program(folder.getPath());
    if (!program.waitUntilPlaying()) {
        std::fprintf(stderr, "the desk did not start: %s\n", program.output().c_str());
        return 1;
    }
    Platform::sleepMilliseconds(SECONDS_OF_REST * 1000);
    report("resident", sumOf(program.pid(), "Rss:"), "MiB");
    report("private", sumOf(program.pid(), "Private_"), "MiB");
    return 0;
}
