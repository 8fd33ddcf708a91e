#include "Host/common/clock/DeskClock.h"

#include "Backend/midi/engine/MidiEngine.h"

#include <gtest/gtest.h>

namespace Host {
namespace {

constexpr std::int32_t FIRST = 50000000;
constexpr std::int64_t START = 123456789;
constexpr std::int64_t MILLISECOND = 1000;
constexpr std::int64_t SECOND = 1000000;

using Slice = DeskClock::Slice;

// Advances millisecond by millisecond, and checks that each slice begins where the last one ended.
Slice runMilliseconds(DeskClock& clock, std::int64_t& now, int count) {
    Slice whole{-1, -1};
    for (int i = 0; i < count; ++i) {
        now += MILLISECOND;
        const Slice slice = clock.advance(now);
        EXPECT_GE(slice.to, slice.from);
        if (whole.from < 0)
            whole.from = slice.from;
        else
            EXPECT_EQ(slice.from, whole.to);
        whole.to = slice.to;
    }
    return whole;
}

TEST(DeskClockTest, InternalClockGoesByItsTempo) {
    for (const int tempo : {20, 60, 120, 250}) {
        DeskClock clock(START);
        clock.setTempo(tempo);
        std::int64_t now = START;
        EXPECT_EQ(runMilliseconds(clock, now, 60000), (Slice{FIRST, FIRST + tempo * 480})) << tempo;
        EXPECT_EQ(clock.advance(now).to, Backend::MidiEngine::MidiEngine::milliseconds2Ppq(60000, tempo));
    }
}

TEST(DeskClockTest, TempoOutOfRangeIsIgnored) {
    DeskClock clock(START);
    for (const int tempo : {19, 251, 0, -1, 1 << 30}) {
        clock.setTempo(tempo);
        EXPECT_EQ(clock.advance(START + SECOND).to, FIRST + 960) << tempo;
    }
}

TEST(DeskClockTest, ChangeOfTempoMovesNothingThatHasBeen) {
    DeskClock clock(START);
    std::int64_t now = START;
    runMilliseconds(clock, now, 1000);
    clock.setTempo(60);
    EXPECT_EQ(runMilliseconds(clock, now, 1000), (Slice{FIRST + 960, FIRST + 960 + 480}));
    clock.setTempo(240);
    EXPECT_EQ(runMilliseconds(clock, now, 1000), (Slice{FIRST + 1440, FIRST + 1440 + 1920}));
}

TEST(DeskClockTest, ManyChangesOfTempoLoseNoTime) {
    DeskClock clock(START);
    std::int64_t now = START;
    std::int32_t to = 0;
    // A fader in motion: alternating between 121 and 119 averages 120.
    for (int i = 0; i < 30000; ++i) {
        clock.setTempo(i % 2 == 0 ? 121 : 119);
        now += MILLISECOND;
        to = clock.advance(now).to;
    }
    EXPECT_NEAR(to, FIRST + 28800, 2);
}

TEST(DeskClockTest, LateSliceMakesUpForWhatWasMissed) {
    DeskClock clock(START);
    EXPECT_EQ(clock.advance(START + SECOND), (Slice{FIRST, FIRST + 960}));
    EXPECT_EQ(clock.advance(START + 3 * SECOND), (Slice{FIRST + 960, FIRST + 2880}));
}

TEST(DeskClockTest, LongGapIsPassedOver) {
    DeskClock clock(START);
    std::int64_t now = START + 3600 * SECOND;
    EXPECT_EQ(clock.advance(now), (Slice{FIRST, FIRST + 1920}));
    EXPECT_EQ(runMilliseconds(clock, now, 1000), (Slice{FIRST + 1920, FIRST + 2880}));
    DeskClock fast(START);
    fast.setTempo(DeskClock::HIGHEST_TEMPO);
    const Slice slice = fast.advance(START + 3600 * SECOND);
    EXPECT_LT(slice.to - slice.from, Backend::MidiEngine::MidiEngine::MAX_TIME_SLICE) << "the engine would skip it";
}

TEST(DeskClockTest, ClockReadTwiceOrBackwardsGivesAnEmptySlice) {
    DeskClock clock(START);
    clock.advance(START + SECOND);
    EXPECT_EQ(clock.advance(START + SECOND), (Slice{FIRST + 960, FIRST + 960}));
    EXPECT_EQ(clock.advance(START), (Slice{FIRST + 960, FIRST + 960}));
    EXPECT_EQ(clock.advance(START + 2 * SECOND), (Slice{FIRST + 960, FIRST + 1920}));
}

TEST(DeskClockTest, TimeLineBeginsAgainBeforeItsNumbersEnd) {
    DeskClock clock(START);
    clock.setTempo(DeskClock::HIGHEST_TEMPO);
    std::int64_t now = START;
    Slice slice{FIRST, FIRST};
    do {
        now += 2 * SECOND;
        slice = clock.advance(now);
        ASSERT_LT(slice.to - slice.from, Backend::MidiEngine::MidiEngine::MAX_TIME_SLICE);
    } while (slice.to >= slice.from);
    EXPECT_GT(slice.from, DeskClock::LAST_PPQ - 5000);
    EXPECT_EQ(slice.to, FIRST);
    EXPECT_EQ(runMilliseconds(clock, now, 1000), (Slice{FIRST, FIRST + 2000}));
}

// A master at 60 beats a minute, whose ticks come exactly.
void runExternal(DeskClock& clock, std::int64_t& now, int ticks) {
    for (int i = 0; i < ticks; ++i) {
        clock.take({ClockMessageKind::TICK, now});
        std::int32_t last = clock.advance(now).to;
        for (int step = 0; step < 40; ++step) {
            now += SECOND / 24 / 40;
            const Slice slice = clock.advance(now);
            ASSERT_EQ(slice.from, last);
            ASSERT_GE(slice.to, slice.from);
            last = slice.to;
        }
    }
}

TEST(DeskClockTest, ExternalClockGoesByItsTicks) {
    DeskClock clock(START);
    clock.setExternal(true);
    std::int64_t now = START;
    runExternal(clock, now, 24);
    EXPECT_NEAR(clock.advance(now).to, FIRST + 480, 3);
    runExternal(clock, now, 240);
    EXPECT_NEAR(clock.advance(now).to, FIRST + 11 * 480, 3);
    EXPECT_NEAR(clock.externalTempo(), 60, 0.1);
}

TEST(DeskClockTest, StoppedExternalClockHoldsTheTime) {
    DeskClock clock(START);
    clock.setExternal(true);
    std::int64_t now = START;
    EXPECT_EQ(runMilliseconds(clock, now, 1000), (Slice{FIRST, FIRST})) << "before its first tick";
    runExternal(clock, now, 24);
    clock.take({ClockMessageKind::STOP, now});
    const std::int32_t stopped = clock.advance(now).to;
    EXPECT_EQ(runMilliseconds(clock, now, 5000), (Slice{stopped, stopped}));
    clock.take({ClockMessageKind::START, now});
    EXPECT_EQ(runMilliseconds(clock, now, 100), (Slice{stopped, stopped}));
    runExternal(clock, now, 24);
    EXPECT_NEAR(clock.advance(now).to, stopped + 480, 3);
}

TEST(DeskClockTest, NudgePassesTwoPpqWhileAnExternalClockIsStopped) {
    DeskClock clock(START);
    clock.setExternal(true);
    clock.nudge();
    std::int64_t now = START;
    EXPECT_EQ(clock.advance(++now), (Slice{FIRST, FIRST + 1}));
    EXPECT_EQ(clock.advance(++now), (Slice{FIRST + 1, FIRST + 2}));
    EXPECT_EQ(clock.advance(++now), (Slice{FIRST + 2, FIRST + 2}));
    now = START + SECOND;
    runExternal(clock, now, 24);
    EXPECT_NEAR(clock.advance(now).to, FIRST + 482, 3);
}

TEST(DeskClockTest, NudgeChangesNothingWhileTheClockRuns) {
    DeskClock clock(START);
    clock.nudge();
    EXPECT_EQ(clock.advance(START + SECOND), (Slice{FIRST, FIRST + 960}));
    std::int64_t now = START + SECOND;
    clock.setExternal(true);
    runExternal(clock, now, 48);
    const std::int32_t before = clock.advance(now).to;
    clock.nudge();
    EXPECT_LE(clock.advance(now).to, before + 1) << "by the fraction of a ppq at most";
}

TEST(DeskClockTest, ChangeOfTheSourceMovesNothing) {
    DeskClock clock(START);
    std::int64_t now = START;
    for (int i = 0; i < 20; ++i) {
        clock.setExternal(true);
        runExternal(clock, now, 10);
        const std::int32_t before = clock.advance(now).to;
        clock.setExternal(false);
        EXPECT_EQ(runMilliseconds(clock, now, 500), (Slice{before, before + 480}));
    }
}

TEST(DeskClockTest, ExternalClockIsKnownAtOnceAfterAMomentOnTheInternalOne) {
    DeskClock clock(START);
    clock.setExternal(true);
    std::int64_t now = START;
    runExternal(clock, now, 48);
    // During a reset of the desk, the clock is internal for a moment while the ticks go on.
    clock.setExternal(false);
    runExternal(clock, now, 1);
    clock.setExternal(true);
    const std::int32_t before = clock.advance(now).to;
    runExternal(clock, now, 24);
    EXPECT_NEAR(clock.advance(now).to, before + 480, 3);
}

}
}
