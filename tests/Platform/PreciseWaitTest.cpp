#include "Platform/PreciseWait.h"

#include "Platform/MonotonicClock.h"
#include "Platform/RaisedPriority.h"
#include "tests/support/AllocationCounter.h"

#include <gtest/gtest.h>

#include <limits>
#include <thread>

namespace Platform {
namespace {

constexpr std::int64_t FAR_OFF = std::int64_t{1} << 50;

TEST(PreciseWaitTest, WaitsNoShorterThanAsked) {
    PreciseWait wait;
    for (const std::int64_t length : {0, 1, 999, 1000, 2500}) {
        const std::int64_t until = monotonicMicroseconds() + length;
        wait.waitUntil(until);
        // The system's timers may round to their own resolution.
        EXPECT_GE(monotonicMicroseconds(), until - 1000) << length;
    }
}

TEST(PreciseWaitTest, MomentThatHasPassedReturnsAtOnce) {
    PreciseWait wait;
    for (const std::int64_t until :
         {monotonicMicroseconds() - 1, std::int64_t{0}, std::int64_t{-1}, std::numeric_limits<std::int64_t>::min() / 2})
        wait.waitUntil(until);
}

TEST(PreciseWaitTest, WakeEndsAWaitFromAnotherThread) {
    PreciseWait wait;
    std::thread waker([&wait] { wait.wake(); });
    wait.waitUntil(FAR_OFF);
    waker.join();
}

TEST(PreciseWaitTest, WakeBeforeTheWaitEndsOnlyTheNextOne) {
    PreciseWait wait;
    wait.wake();
    wait.wake();
    wait.waitUntil(FAR_OFF);
    const std::int64_t until = monotonicMicroseconds() + 5000;
    wait.waitUntil(until);
    EXPECT_GE(monotonicMicroseconds(), until - 1000) << "the second wake was used up with the first";
}

TEST(PreciseWaitTest, AllocatesNothing) {
    PreciseWait wait;
    std::size_t count = 0;
    {
        const TestSupport::AllocationCounter counter;
        wait.waitUntil(monotonicMicroseconds() + 1000);
        wait.wake();
        wait.waitUntil(FAR_OFF);
        count = counter.count();
    }
    EXPECT_EQ(count, 0u);
}

TEST(MonotonicClockTest, NeverGoesBack) {
    std::int64_t last = monotonicMicroseconds();
    for (int i = 0; i < 100000; ++i) {
        const std::int64_t now = monotonicMicroseconds();
        ASSERT_GE(now, last);
        last = now;
    }
}

TEST(RaisedPriorityTest, MayBeTakenAgainAndAgain) {
    for (int i = 0; i < 3; ++i) {
        const RaisedPriority priority;
        const bool first = priority.isRaised();
        const RaisedPriority within;
        EXPECT_EQ(within.isRaised(), first) << "what the system agreed to once, it agrees to again";
    }
}

}
}
