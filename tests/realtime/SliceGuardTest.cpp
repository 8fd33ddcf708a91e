#include "tests/realtime/SliceGuard.h"

#include "tests/support/EngineFixture.h"

#include <gtest/gtest.h>
#include <linux/futex.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <mutex>
#include <shared_mutex>
#include <thread>

namespace TestSupport {
namespace {

using Backend::MidiEngine::MidiMessage;
using Backend::MidiEngine::MirelMidiMessage;

void* volatile s_memory = nullptr;  // So that no compiler leaves the heap out.

struct Breach {
    const char* call;
    std::function<void()> commit;
};

class SliceGuardTest : public testing::Test {
public:
    SliceGuardTest() { SliceGuard::takeBreaches(); }

    static std::vector<std::string> breachesOf(const std::function<void()>& action) {
        {
            const SliceGuard guard;
            action();
        }
        return SliceGuard::takeBreaches();
    }
};

TEST_F(SliceGuardTest, WhatASliceMustNotDoIsNoted) {
    std::mutex mutex;
    std::shared_mutex shared;
    std::condition_variable condition;
    std::unique_lock held(mutex);
    std::mutex other;
    std::FILE* nowhere = std::fopen("/dev/null", "w");
    void* const old = std::malloc(1);
    std::uint32_t word = 1;
    const std::string text = "text";
    const Breach breaches[] = {
        {"malloc", [] { s_memory = std::malloc(1); }},
        {"malloc", [] { s_memory = new int; }},
        {"free", [old] { std::free(old); }},
        {"pthread_mutex_lock", [&] { const std::lock_guard lock(other); }},
        {"pthread_rwlock_wrlock", [&] { const std::unique_lock lock(shared); }},
        {"pthread_rwlock_rdlock", [&] { const std::shared_lock lock(shared); }},
        {"pthread_cond_clockwait", [&] { condition.wait_for(held, std::chrono::nanoseconds(1)); }},
        {"futex wait", [&] { syscall(SYS_futex, &word, FUTEX_WAIT_PRIVATE, 0, nullptr, nullptr, 0); }},
        {"sched_yield", [] { std::this_thread::yield(); }},
        {"nanosleep", [] { std::this_thread::sleep_for(std::chrono::nanoseconds(1)); }},
        {"clock_gettime", [] { std::chrono::steady_clock::now(); }},
        {"fputs", [&] { std::fputs(text.c_str(), nowhere); }},
        {"fprintf", [nowhere] { std::fprintf(nowhere, "%d", 1); }},
        {"fopen", [] { std::fclose(std::fopen("/dev/null", "r")); }},
    };
    for (const Breach& breach : breaches) {
        const auto found = breachesOf(breach.commit);
        const bool isNoted = std::any_of(found.begin(), found.end(), [&breach](const std::string& line) {
            return line.starts_with(std::string(breach.call) + "\n");
        });
        EXPECT_TRUE(isNoted) << breach.call << " among " << testing::PrintToString(found);
    }
    std::fclose(nowhere);
}

TEST_F(SliceGuardTest, WhatIsAllowedIsNot) {
    std::mutex mutex;
    std::atomic<std::uint32_t> word{0};

    const auto found = breachesOf([&] {
        if (mutex.try_lock())
            mutex.unlock();
        word = 1;
        word.notify_one();
    });

    EXPECT_EQ(found, std::vector<std::string>());
}

TEST_F(SliceGuardTest, NothingIsNotedOutsideAndOnOtherThreads) {
    std::atomic<bool> isGuarded{false};
    std::atomic<bool> hasAllocated{false};
    std::thread other([&] {
        while (!isGuarded)
            std::this_thread::yield();
        delete new int;
        hasAllocated = true;
    });
    {
        const SliceGuard guard;
        isGuarded = true;
        while (!hasAllocated) {
        }
    }
    other.join();
    delete new int;

    EXPECT_EQ(SliceGuard::takeBreaches(), std::vector<std::string>());
}

// An output that allocates with each event.
class GreedyPlayer : public FakeHost {
public:
    void playMidi(const MirelMidiMessage&) override { delete new int; }
};

TEST_F(SliceGuardTest, SlicesOfTheEngineAreGuarded) {
    GreedyPlayer player;
    Backend::MidiEngine::MidiEngine engine(player.mirel(), player);
    engine.initialize(0, false);
    engine.getMessageManager().postSetMidiOutputPorts({1, Backend::MidiEngine::MidiOutputPort()});
    engine.getMessageManager().postPlayMidi(MirelMidiMessage(MidiMessage::NoteOn, 60, 100, {.output = 0}));
    engine.getMessageManager().waitUntilIdle();
    SliceGuard::takeBreaches();

    engine.playTimeSlice(0, 0);
    EXPECT_EQ(SliceGuard::takeBreaches(), std::vector<std::string>()) << "nothing was due";
    engine.playTimeSlice(0, 1);
    const auto found = SliceGuard::takeBreaches();
    engine.end();

    ASSERT_EQ(found.size(), 2u) << testing::PrintToString(found);
    EXPECT_TRUE(found[0].starts_with("free\n")) << found[0];
    EXPECT_TRUE(found[1].starts_with("malloc\n")) << found[1];
    EXPECT_NE(found[1].find("MidiEngine::playMidiInternal"), std::string::npos) << found[1];
}

}
}
