// How much processor time does an idle desk take, with one slice per millisecond?
#include "Platform/MonotonicClock.h"
#include "Platform/PreciseWait.h"
#include "Platform/RaisedPriority.h"
#include "Platform/Sleep.h"
#include "Platform/TemporaryFolder.h"
#include "benchmarks/Report.h"
#include "benchmarks/RunningProgram.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>

namespace {

constexpr int SECONDS = 30;

// The lower bound on this computer: a thread that does nothing but wake up each millisecond.
void measurePausesAlone() {
    constexpr std::int64_t MILLISECOND = 1000;
    const Platform::RaisedPriority priority;
    Platform::PreciseWait wait;
    const auto own = [] {
        double nanoseconds = 0;
        std::ifstream("/proc/thread-self/schedstat") >> nanoseconds;
        return nanoseconds;
    };
    const double before = own();
    const std::int64_t start = Platform::monotonicMicroseconds();
    for (std::int64_t i = 1; i <= SECONDS * 1000; ++i)
        wait.waitUntil(start + i * MILLISECOND);
    Benchmarks::report("waking up a thousand times a second, without a desk", (own() - before) / (SECONDS * 1e9) * 100,
                       "% of a core");
}

// The processor time of each thread of a process so far, in nanoseconds, by name.
std::map<std::string, double> threadTimes(int pid) {
    std::map<std::string, double> times;
    for (const auto& thread : std::filesystem::directory_iterator("/proc/" + std::to_string(pid) + "/task")) {
        std::string name;
        std::ifstream names(thread.path() / "comm");
        std::getline(names, name);
        double nanoseconds = 0;
        std::ifstream(thread.path() / "schedstat") >> nanoseconds;
        times[name] += nanoseconds;
    }
    return times;
}

}

int main() {
    using namespace Benchmarks;
    constexpr int SECONDS_TO_SETTLE = 2;
    constexpr double AIM_PERCENT = 1;
    const Platform::TemporaryFolder folder;
    RunningProgram program(folder.getPath());
    if (!program.waitUntilPlaying()) {
        std::fprintf(stderr, "the desk did not start: %s\n", program.output().c_str());
        return 1;
    }
    Platform::sleepMilliseconds(SECONDS_TO_SETTLE * 1000);
    const auto before = threadTimes(program.pid());
    Platform::sleepMilliseconds(SECONDS * 1000);
    double sum = 0;
    std::map<std::string, double> percents;
    for (const auto& [name, nanoseconds] : threadTimes(program.pid())) {
        const auto earlier = before.find(name);
        percents[name] = (nanoseconds - (earlier == before.end() ? 0 : earlier->second)) / (SECONDS * 1e9) * 100;
        sum += percents[name];
    }
    report("all threads", sum, "% of a core", AIM_PERCENT);
    for (const auto& [name, percent] : percents)
        report("thread \"" + name + "\"", percent, "% of a core");
    measurePausesAlone();
    return 0;
}
