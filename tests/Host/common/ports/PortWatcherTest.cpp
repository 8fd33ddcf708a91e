#include "Host/common/ports/PortWatcher.h"

#include "tests/support/Eventually.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace Host {
namespace {

using namespace std::chrono_literals;
using TestSupport::eventually;

struct Looks {
    std::atomic<int> count{0};
    std::atomic<bool> hangs{false};
    std::atomic<bool> hasReturned{false};

    void look() {
        ++count;
        while (hangs)
            std::this_thread::yield();
        hasReturned = true;
    }
};

TEST(PortWatcherTest, LooksAgainAndAgain) {
    const auto looks = std::make_shared<Looks>();
    PortWatcher watcher([looks] { looks->look(); }, 1ms);
    EXPECT_TRUE(eventually([&looks] { return looks->count >= 5; }));
    EXPECT_TRUE(watcher.stop(60s));
    const int count = looks->count;
    watcher.wake();
    EXPECT_TRUE(watcher.stop());
    EXPECT_EQ(looks->count, count);
}

TEST(PortWatcherTest, LooksAtOnceWhenWoken) {
    const auto looks = std::make_shared<Looks>();
    PortWatcher watcher([looks] { looks->look(); }, 24h);
    EXPECT_EQ(looks->count, 0);
    watcher.wake();
    EXPECT_TRUE(eventually([&looks] { return looks->count == 1; }));
}

TEST(PortWatcherTest, LookThatHangsIsAbandoned) {
    const auto looks = std::make_shared<Looks>();
    looks->hangs = true;
    {
        PortWatcher watcher([looks] { looks->look(); }, 1ms);
        ASSERT_TRUE(eventually([&looks] { return looks->count == 1; }));
        EXPECT_FALSE(watcher.stop(0ms));
    }
    looks->hangs = false;
    EXPECT_TRUE(eventually([&looks] { return looks->hasReturned.load(); }));
    EXPECT_TRUE(eventually([&looks] { return looks.use_count() == 1; })) << "its thread ends then";
}

}
}
