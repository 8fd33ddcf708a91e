#include "Platform/AutoResetEvent.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace Platform {
namespace {

TEST(AutoResetEventTest, SetBeforeWaitLetsTheWaitThrough) {
    AutoResetEvent event;
    event.set();
    event.wait();
}

TEST(AutoResetEventTest, SettingTwiceLetsOneWaitThrough) {
    AutoResetEvent event;
    event.set();
    event.set();
    event.wait();
    std::atomic<bool> through{false};
    std::thread waiter([&] {
        event.wait();
        through.store(true);
    });
    EXPECT_FALSE(through.load());
    event.set();
    waiter.join();
}

TEST(AutoResetEventTest, TwoThreadsTakeTurns) {
    AutoResetEvent ping;
    AutoResetEvent pong;
    int turns = 0;
    constexpr int ROUNDS = 2000;
    std::thread other([&] {
        for (int i = 0; i < ROUNDS; ++i) {
            ping.wait();
            ++turns;
            pong.set();
        }
    });

    for (int i = 0; i < ROUNDS; ++i) {
        ping.set();
        pong.wait();
        ASSERT_EQ(turns, i + 1);
    }

    other.join();
}

}
}
