#include "Host/common/midifile/MidiFileClock.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <utility>
#include <vector>

namespace Host {
namespace {

MidiFile quarters(int ticksPerQuarter, std::vector<MidiFileTempo> tempi = {}) {
    MidiFile file;
    file.division = {ticksPerQuarter, 0, 0};
    file.tempi = std::move(tempi);
    return file;
}

MidiFile frames(int framesPerSecond, int ticksPerFrame, std::vector<MidiFileTempo> tempi = {}) {
    MidiFile file;
    file.division = {0, framesPerSecond, ticksPerFrame};
    file.tempi = std::move(tempi);
    return file;
}

TEST(MidiFileClockTest, TicksOfAQuarterBecomePpqRoundedHalfUp) {
    struct Case {
        int division;
        std::int64_t tick;
        std::int64_t expected;
    };

    for (const Case& c :
         {Case{480, 0, 0},  Case{480, 12345, 12345}, Case{96, 1, 5},          Case{96, 97, 485},  Case{960, 1, 1},
          Case{960, 2, 1},  Case{960, 3, 2},         Case{1920, 1, 0},        Case{1920, 2, 1},   Case{1920, 5, 1},
          Case{1920, 6, 2}, Case{1024, 1, 0},        Case{1024, 2, 1},        Case{7, 1, 69},     Case{7, 3, 206},
          Case{7, 7, 480},  Case{1, 3, 1440},        Case{32767, 32767, 480}, Case{32767, 34, 0}, Case{32767, 35, 1},
          Case{961, 1, 0},  Case{959, 1, 1}}) {
        EXPECT_EQ(MidiFileClock(quarters(c.division)).ppq(c.tick), c.expected) << c.division << " " << c.tick;
    }
}

TEST(MidiFileClockTest, TheTempoOfTheFileDoesNotMoveMusicalTime) {
    EXPECT_EQ(MidiFileClock(quarters(96, {{0, 1000000}, {48, 1}}), 60).ppq(960), 4800);
}

TEST(MidiFileClockTest, TicksOfAFrameBecomePpqAtTheTempoGiven) {
    struct Case {
        int frames;
        int ticks;
        int tempo;
        std::int64_t tick;
        std::int64_t expected;
    };

    // A second at 120 beats a minute is 960 ppq.
    for (const Case& c :
         {Case{25, 40, 120, 1000, 960}, Case{25, 40, 60, 1000, 480}, Case{25, 40, 120, 1, 1}, Case{24, 4, 120, 96, 960},
          Case{30, 80, 120, 2400, 960}, Case{30, 80, 120, 1, 0}, Case{30, 80, 120, 2, 1},
          // 30 drop: 30000 frames take 1001 seconds; an hour of 107892 frames is 3599.9964 seconds.
          Case{29, 1, 120, 30000, 960960}, Case{29, 1, 120, 107892, 3455997}, Case{29, 80, 120, 2400000, 960960},
          // Half a ppq is rounded up: 1/16 of a second at 120 is 60 ppq, at 1 it is half a ppq.
          Case{24, 2, 1, 3, 1}, Case{24, 4, 1, 5, 0}}) {
        EXPECT_EQ(MidiFileClock(frames(c.frames, c.ticks), c.tempo).ppq(c.tick), c.expected)
            << c.frames << " " << c.ticks << " " << c.tempo << " " << c.tick;
    }
}

TEST(MidiFileClockTest, TheTempoForFramesIsClamped) {
    EXPECT_EQ(MidiFileClock(frames(25, 40), 0).ppq(60000), MidiFileClock(frames(25, 40), 1).ppq(60000));
    EXPECT_EQ(MidiFileClock(frames(25, 40), -5).ppq(60000), 480);
    EXPECT_EQ(MidiFileClock(frames(25, 40), 2000).ppq(60000), 480000);
    EXPECT_EQ(MidiFileClock(frames(25, 40)).ppq(60000), 57600);
}

TEST(MidiFileClockTest, TheLargestTicksDoNotOverflow) {
    const std::int64_t max = MidiFileClock::MAX_TICK;
    EXPECT_EQ(MidiFileClock(quarters(1)).ppq(max), max * 480);
    EXPECT_EQ(MidiFileClock(quarters(480)).ppq(max), max);
    EXPECT_EQ(MidiFileClock(quarters(32767)).ppq(max - max % 32767), max / 32767 * 480);
    EXPECT_EQ(MidiFileClock(frames(24, 1), 1000).ppq(max - max % 24), max / 24 * 8000);
    EXPECT_EQ(MidiFileClock(frames(29, 1), 1000).ppq(max - max % 30000), max / 30000 * 8008000);
    EXPECT_EQ(MidiFileClock(frames(29, 255), 1000).ppq(7649999), 8007999);
}

TEST(MidiFileClockTest, TicksAreClampedToTheRange) {
    const MidiFileClock clock(quarters(480));
    EXPECT_EQ(clock.ppq(-1), 0);
    EXPECT_EQ(clock.ppq(INT64_MIN), 0);
    EXPECT_EQ(clock.ppq(INT64_MAX), MidiFileClock::MAX_TICK);
    EXPECT_EQ(clock.seconds(-1), 0.0);
    EXPECT_EQ(clock.seconds(INT64_MAX), clock.seconds(MidiFileClock::MAX_TICK));
}

TEST(MidiFileClockTest, SecondsFollowTheTempi) {
    const MidiFileClock plain(quarters(100));
    EXPECT_DOUBLE_EQ(plain.seconds(0), 0.0);
    EXPECT_DOUBLE_EQ(plain.seconds(300), 1.5);
    // 120 until tick 100, then 60 until tick 300, then 240.
    const MidiFileClock clock(quarters(100, {{100, 1000000}, {300, 250000}}));
    EXPECT_DOUBLE_EQ(clock.seconds(50), 0.25);
    EXPECT_DOUBLE_EQ(clock.seconds(100), 0.5);
    EXPECT_DOUBLE_EQ(clock.seconds(200), 1.5);
    EXPECT_DOUBLE_EQ(clock.seconds(300), 2.5);
    EXPECT_DOUBLE_EQ(clock.seconds(500), 3.0);
    EXPECT_DOUBLE_EQ(MidiFileClock(quarters(100, {{0, 1000000}})).seconds(100), 1.0);
}

TEST(MidiFileClockTest, SecondsOfFramesNeedNoTempo) {
    EXPECT_DOUBLE_EQ(MidiFileClock(frames(25, 40, {{0, 1}}), 60).seconds(1500), 1.5);
    EXPECT_DOUBLE_EQ(MidiFileClock(frames(29, 2)).seconds(60000), 1001.0);
    EXPECT_DOUBLE_EQ(MidiFileClock(frames(30, 2)).seconds(60000), 1000.0);
}

TEST(MidiFileClockTest, TempiInPpqBeginAtTheStart) {
    using Tempi = std::vector<MidiFileTempo>;
    EXPECT_EQ(MidiFileClock(quarters(96)).ppqTempi(), (Tempi{{0, 500000}}));
    EXPECT_EQ(MidiFileClock(quarters(96, {{0, 7}, {96, 8}})).ppqTempi(), (Tempi{{0, 7}, {480, 8}}));
    EXPECT_EQ(MidiFileClock(quarters(96, {{2, 7}})).ppqTempi(), (Tempi{{0, 500000}, {10, 7}}));
    // Where two ticks are one ppq, the later tempo holds.
    EXPECT_EQ(MidiFileClock(quarters(4800, {{100, 7}, {101, 8}})).ppqTempi(), (Tempi{{0, 500000}, {10, 8}}));
    EXPECT_EQ(MidiFileClock(frames(25, 40, {{10, 7}}), 90).ppqTempi(), (Tempi{{0, 666667}}));
}

TEST(MidiFileClockTest, ADivisionThatNoFileHasCountsAsTheDefault) {
    for (const MidiFileDivision& division :
         {MidiFileDivision{0, 0, 0}, MidiFileDivision{-5, 0, 0}, MidiFileDivision{40000, 0, 0},
          MidiFileDivision{0, 25, 0}, MidiFileDivision{0, -25, 40}, MidiFileDivision{0, 25, 256}}) {
        MidiFile file;
        file.division = division;
        EXPECT_EQ(MidiFileClock(file).ppq(77), 77);
        EXPECT_DOUBLE_EQ(MidiFileClock(file).seconds(480), 0.5);
    }
}

}
}
