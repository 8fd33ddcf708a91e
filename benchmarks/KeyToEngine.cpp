// How long does it take from a key of the computer until the engine has its note?
#include "Backend/core/MirelMessageManager.h"
#include "Backend/input/Key.h"
#include "Platform/MonotonicClock.h"
#include "Platform/Sleep.h"
#include "Platform/TemporaryFolder.h"
#include "benchmarks/BenchDesk.h"
#include "benchmarks/Report.h"

#include <chrono>
#include <cstdio>

// The threads between are asleep before each key, as they are when somebody plays. The player runs.
int main() {
    using namespace Benchmarks;
    using Clock = std::chrono::steady_clock;
    constexpr int PRESSES = 3000;
    constexpr double AIM_MICROSECONDS = 100;
    const Platform::TemporaryFolder folder;
    BenchDesk desk(folder.getPath(), BenchDesk::Slices::EVERY_MILLISECOND);
    const Key key{std::string_view("Q")};
    std::vector<double> microseconds;
    for (int i = 0; i < PRESSES; ++i) {
        Platform::sleepMilliseconds(2);
        const auto start = Clock::now();
        desk.mirel().getMessageManager().postKeyDown(key, false);
        desk.spinUntilIdle();
        microseconds.push_back(std::chrono::duration<double, std::micro>(Clock::now() - start).count());
        desk.mirel().getMessageManager().postKeyUp(key);
        desk.waitUntilIdle();
    }
    reportSpread("from a key to the engine", microseconds, "us", AIM_MICROSECONDS);
    return 0;
}
