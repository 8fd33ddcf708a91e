// How long does it take from a key press until the engine has its note?
#include "Backend/core/MirelMessageManager.h"
#include "Backend/input/Key.h"
#include "Platform/MessageThread.h"
#include "Platform/Sleep.h"
#include "Platform/TemporaryFolder.h"
#include "benchmarks/BenchDesk.h"
#include "benchmarks/Report.h"

#include <atomic>
#include <chrono>
#include <thread>

namespace {

using namespace Benchmarks;
using Clock = std::chrono::steady_clock;

constexpr int PRESSES = 3000;
constexpr UINT WAKE = 0x8001;

double microsecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::micro>(Clock::now() - start).count();
}

// Before each key the threads in between are asleep, as when somebody plays.
void waitForNextPress() {
    Platform::sleepMilliseconds(2);
}

// The player runs.
void measureDesk() {
    constexpr double AIM_MICROSECONDS = 100;
    const Platform::TemporaryFolder folder;
    BenchDesk desk(folder.getPath(), BenchDesk::Slices::EVERY_MILLISECOND);
    const Key key{std::string_view("Q")};
    std::vector<double> microseconds;
    for (int i = 0; i < PRESSES; ++i) {
        waitForNextPress();
        const auto start = Clock::now();
        desk.mirel().getMessageManager().postKeyDown(key, false);
        desk.spinUntilIdle();
        microseconds.push_back(microsecondsSince(start));
        desk.mirel().getMessageManager().postKeyUp(key);
        desk.waitUntilIdle();
    }
    reportSpread("from a key to the engine", microseconds, "us", AIM_MICROSECONDS);
}

// The lower bound on this computer: one thread wakes another, which wakes a third.
void measureWakesAlone() {
    std::atomic<int> arrived{0};
    Platform::MessageThread first;
    Platform::MessageThread second;
    second.start("second", [&] {
        MSG message = {};
        while (second.get(message))
            ++arrived;
    });
    first.start("first", [&] {
        MSG message = {};
        while (first.get(message))
            second.post(message.message, 0, 0);
    });
    std::vector<double> microseconds;
    for (int i = 0; i < PRESSES; ++i) {
        waitForNextPress();
        const auto start = Clock::now();
        first.post(WAKE, 0, 0);
        while (arrived <= i)
            std::this_thread::yield();
        microseconds.push_back(microsecondsSince(start));
    }
    for (Platform::MessageThread* thread : {&first, &second}) {
        thread->post(WM_QUIT, 0, 0);
        thread->join();
    }
    reportSpread("two threads that wake each other, without a desk", microseconds, "us");
}

}

int main() {
    measureDesk();
    measureWakesAlone();
    return 0;
}
