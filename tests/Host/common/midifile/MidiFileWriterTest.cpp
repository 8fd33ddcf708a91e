#include "Host/common/midifile/MidiFileWriter.h"

#include "Host/common/midifile/MidiFileClock.h"
#include "Host/common/midifile/MidiFileReader.h"
#include "tests/Host/common/midifile/MidiFileTestBytes.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace Host {
namespace {

using namespace MidiFileTestBytes;
using Layout = MidiFileWriter::Layout;

MidiFileEvent note(std::int64_t tick, int d1, std::uint8_t channel = 0) {
    return {tick, 0x90, channel, static_cast<std::uint8_t>(d1), 64, {}};
}

TEST(MidiFileWriterTest, AnEmptyFileHasOneTrackThatEndsAtOnce) {
    const MidiFileWriter writer;
    EXPECT_EQ(writer.content(Layout::SINGLE_TRACK), header(0, 1, 480) + chunk("MTrk", END));
    EXPECT_EQ(writer.content(Layout::TRACKS), header(1, 1, 480) + chunk("MTrk", END));
}

TEST(MidiFileWriterTest, EachKindOfEventHasItsBytes) {
    MidiFileWriter writer;
    EXPECT_TRUE(writer.add(0, {1, 0x80, 1, 2, 3, {}}));
    EXPECT_TRUE(writer.add(0, {1, 0x90, 15, 127, 127, {}}));
    EXPECT_TRUE(writer.add(0, {2, 0xa0, 0, 0, 0, {}}));
    EXPECT_TRUE(writer.add(0, {2, 0xb0, 2, 7, 100, {}}));
    EXPECT_TRUE(writer.add(0, {2, 0xc0, 3, 5, 6, {}}));
    EXPECT_TRUE(writer.add(0, {2, 0xd0, 4, 5, 0, {}}));
    EXPECT_TRUE(writer.add(0, {2, 0xe0, 5, 1, 64, {}}));
    EXPECT_TRUE(writer.add(0, {130, MIDI_FILE_SYSEX, 0, 0, 0, "\x43\xf7"}));
    EXPECT_TRUE(writer.add(0, {130, MIDI_FILE_ESCAPE, 0, 0, 0, "\xf8"}));
    EXPECT_TRUE(writer.add(0, makeTempo(130, 500000)));
    EXPECT_TRUE(writer.add(0, makeTimeSignature(130, 6, 3)));
    EXPECT_EQ(writer.content(Layout::SINGLE_TRACK),
              header(0, 1, 480) +
                  chunk("MTrk", bytes({1,    0x81, 2,    3,    0,    0x9f, 127,  127,  1, 0xa0, 0,    0,    0,
                                       0xb2, 7,    100,  0,    0xc3, 5,    0,    0xd4, 5, 0,    0xe5, 1,    64,
                                       0x81, 0x00, 0xf0, 2,    0x43, 0xf7, 0,    0xf7, 1, 0xf8, 0,    0xff, 0x51,
                                       3,    0x07, 0xa1, 0x20, 0,    0xff, 0x58, 4,    6, 3,    24,   8}) +
                                    END));
}

TEST(MidiFileWriterTest, DeltasTakeAsFewBytesAsTheyNeed) {
    struct Case {
        std::int64_t delta;
        std::string expected;
    };

    for (const Case& c : {Case{0, bytes({0})}, Case{0x7f, bytes({0x7f})}, Case{0x80, bytes({0x81, 0})},
                          Case{0x3fff, bytes({0xff, 0x7f})}, Case{0x4000, bytes({0x81, 0x80, 0})},
                          Case{0x1fffff, bytes({0xff, 0xff, 0x7f})}, Case{0x200000, bytes({0x81, 0x80, 0x80, 0})},
                          Case{0x0fffffff, bytes({0xff, 0xff, 0xff, 0x7f})}}) {
        MidiFileWriter writer;
        ASSERT_TRUE(writer.add(0, note(c.delta, 60)));
        EXPECT_EQ(writer.content(Layout::SINGLE_TRACK),
                  header(0, 1, 480) + chunk("MTrk", c.expected + bytes({0x90, 60, 64}) + END))
            << c.delta;
    }
}

TEST(MidiFileWriterTest, LongerPausesAreBridged) {
    MidiFileWriter writer;
    ASSERT_TRUE(writer.add(0, note(0x10000000, 60)));
    EXPECT_EQ(writer.content(Layout::SINGLE_TRACK),
              header(0, 1, 480) + chunk("MTrk", bytes({0xff, 0xff, 0xff, 0x7f, 0xff, 1, 0, 1, 0x90, 60, 64}) + END));

    ASSERT_TRUE(writer.add(0, note(MidiFileWriter::MAX_PPQ, 61)));
    const MidiFileResult result = readMidiFile(writer.content(Layout::SINGLE_TRACK).value());
    ASSERT_FALSE(result.error) << *result.error;
    EXPECT_EQ(result.file.tracks.at(0).events.back(), note(MidiFileWriter::MAX_PPQ, 61));
}

TEST(MidiFileWriterTest, EventsAreSortedAndThoseOfATimeKeepTheirOrder) {
    MidiFileWriter writer;
    for (const auto& [tick, d1] : {std::pair{10, 1}, {5, 2}, {10, 3}, {0, 4}, {5, 5}})
        ASSERT_TRUE(writer.add(0, note(tick, d1)));
    const MidiFileResult result = readMidiFile(writer.content(Layout::TRACKS).value());
    ASSERT_FALSE(result.error) << *result.error;
    EXPECT_EQ(tell(result.file.tracks.at(0)),
              "0:90.0(04,40) 5:90.0(02,40) 5:90.0(05,40) 10:90.0(01,40) 10:90.0(03,40)");
}

TEST(MidiFileWriterTest, TracksAreSeparateInFormat1AndMergedInFormat0) {
    MidiFileWriter writer;
    const std::size_t first = writer.addTrack("one");
    const std::size_t second = writer.addTrack();
    EXPECT_EQ(first, 1u);
    EXPECT_EQ(second, 2u);
    ASSERT_TRUE(writer.add(second, note(5, 3, 1)));
    ASSERT_TRUE(writer.add(first, note(5, 2)));
    ASSERT_TRUE(writer.add(first, note(9, 4)));
    ASSERT_TRUE(writer.add(MidiFileWriter::CONDUCTOR, makeTempo(5, 600000)));
    ASSERT_TRUE(writer.add(second, note(0, 1, 1)));

    const MidiFileResult tracks = readMidiFile(writer.content(Layout::TRACKS).value());
    ASSERT_FALSE(tracks.error) << *tracks.error;
    EXPECT_EQ(tracks.file.format, 1);
    ASSERT_EQ(tracks.file.tracks.size(), 3u);
    EXPECT_EQ(tell(tracks.file.tracks[0]), "5:ff51[0927c0]");
    EXPECT_EQ(tell(tracks.file.tracks[1]), "0:ff03[6f6e65] 5:90.0(02,40) 9:90.0(04,40)");
    EXPECT_EQ(tell(tracks.file.tracks[2]), "0:90.1(01,40) 5:90.1(03,40)");
    EXPECT_EQ(tracks.file.tracks[1].name, "one");
    EXPECT_EQ(tracks.file.tempi, (std::vector<MidiFileTempo>{{5, 600000}}));

    const MidiFileResult single = readMidiFile(writer.content(Layout::SINGLE_TRACK).value());
    ASSERT_FALSE(single.error) << *single.error;
    EXPECT_EQ(single.file.format, 0);
    ASSERT_EQ(single.file.tracks.size(), 1u);
    EXPECT_EQ(tell(single.file.tracks[0]),
              "0:ff03[6f6e65] 0:90.1(01,40) 5:ff51[0927c0] 5:90.0(02,40) 5:90.1(03,40) 9:90.0(04,40)");
    EXPECT_EQ(single.file.tempi, tracks.file.tempi);
}

TEST(MidiFileWriterTest, ATrackEndsAtItsSetEndOrItsLastEvent) {
    MidiFileWriter writer;
    const std::size_t track = writer.addTrack();
    ASSERT_TRUE(writer.add(track, note(100, 60)));
    ASSERT_TRUE(writer.setEnd(track, 50));
    ASSERT_TRUE(writer.setEnd(MidiFileWriter::CONDUCTOR, 0x20000000));

    const MidiFileResult tracks = readMidiFile(writer.content(Layout::TRACKS).value());
    ASSERT_FALSE(tracks.error) << *tracks.error;
    EXPECT_EQ(tracks.file.tracks.at(0).endTick, 0x20000000);
    EXPECT_EQ(tracks.file.tracks.at(1).endTick, 100);

    const MidiFileResult single = readMidiFile(writer.content(Layout::SINGLE_TRACK).value());
    ASSERT_FALSE(single.error) << *single.error;
    EXPECT_EQ(single.file.tracks.at(0).endTick, 0x20000000);
    EXPECT_FALSE(writer.setEnd(2, 0));
    EXPECT_FALSE(writer.setEnd(0, -1));
    EXPECT_FALSE(writer.setEnd(0, MidiFileWriter::MAX_PPQ + 1));
    EXPECT_TRUE(writer.setEnd(0, MidiFileWriter::MAX_PPQ));
}

TEST(MidiFileWriterTest, WhatAFileCantHoldIsNotAdded) {
    const std::vector<std::pair<const char*, MidiFileEvent>> cases{
        {"time below 0", {-1, 0x90, 0, 60, 64, {}}},
        {"time too large", {MidiFileWriter::MAX_PPQ + 1, 0x90, 0, 60, 64, {}}},
        {"no status", {0, 0x00, 0, 60, 64, {}}},
        {"data byte for a status", {0, 0x70, 0, 60, 64, {}}},
        {"status with a channel in it", {0, 0x91, 0, 60, 64, {}}},
        {"channel 16", {0, 0x90, 16, 60, 64, {}}},
        {"first data byte", {0, 0x90, 0, 128, 64, {}}},
        {"second data byte", {0, 0x90, 0, 60, 128, {}}},
        {"pitch bend with a channel in it", {0, 0xe1, 0, 60, 64, {}}},
        {"song position", {0, 0xf2, 0, 60, 64, {}}},
        {"timing tick", {0, 0xf8, 0, 0, 0, {}}},
        {"active sensing", {0, 0xfe, 0, 0, 0, {}}},
        {"sysex with a channel", {0, MIDI_FILE_SYSEX, 1, 0, 0, "\xf7"}},
        {"end of track", {0, MIDI_FILE_META, 0, META_END_OF_TRACK, 0, {}}},
        {"too much data", {0, MIDI_FILE_SYSEX, 0, 0, 0, std::string(0x10000000, '\xf7')}},
    };

    MidiFileWriter writer;
    for (const auto& [name, event] : cases)
        EXPECT_FALSE(writer.add(0, event)) << name;

    EXPECT_FALSE(writer.add(1, note(0, 60)));
    EXPECT_EQ(writer.content(Layout::SINGLE_TRACK), header(0, 1, 480) + chunk("MTrk", END));
}

TEST(MidiFileWriterTest, TracksAreLimitedByTheHeader) {
    MidiFileWriter writer;
    for (int i = 1; i < 0xffff; ++i)
        writer.addTrack();
    const MidiFileResult result = readMidiFile(writer.content(Layout::TRACKS).value());
    ASSERT_FALSE(result.error) << *result.error;
    EXPECT_EQ(result.file.tracks.size(), 0xffffu);
    writer.addTrack();
    EXPECT_EQ(writer.content(Layout::TRACKS), std::nullopt);
    EXPECT_NE(writer.content(Layout::SINGLE_TRACK), std::nullopt);
}

TEST(MidiFileWriterTest, ATempoIsKeptToThreeBytes) {
    EXPECT_EQ(tempoOf(makeTempo(3, 0)), (MidiFileTempo{3, 1}));
    EXPECT_EQ(tempoOf(makeTempo(3, 0x1000000)), (MidiFileTempo{3, 0xffffff}));
    EXPECT_EQ(tempoOf(makeTempo(3, 0x123456)), (MidiFileTempo{3, 0x123456}));
    EXPECT_EQ(tempoOf(makeTimeSignature(3, 4, 2)), std::nullopt);
}

TEST(MidiFileWriterTest, AFileOfAnotherDivisionKeepsItsTempiInPpq) {
    const std::string file = header(1, 2, 96) +
                             chunk("MTrk", bytes({0, 0xff, 0x51, 3, 9, 0x27, 0xc0, 48, 0xff, 0x51, 3, 3, 0, 0}) + END) +
                             chunk("MTrk", bytes({7, 0x90, 60, 64, 89, 0x80, 60, 0}) + END);
    const MidiFileResult in = readMidiFile(file);
    ASSERT_FALSE(in.error) << *in.error;

    const MidiFileClock clock(in.file);

    MidiFileWriter writer;
    for (const MidiFileTempo& tempo : clock.ppqTempi())
        ASSERT_TRUE(writer.add(MidiFileWriter::CONDUCTOR, makeTempo(tempo.tick, tempo.microsecondsPerQuarter)));

    const std::size_t track = writer.addTrack();
    for (MidiFileEvent event : in.file.tracks.at(1).events) {
        event.tick = clock.ppq(event.tick);
        ASSERT_TRUE(writer.add(track, event));
    }

    const MidiFileResult out = readMidiFile(writer.content(Layout::TRACKS).value());
    ASSERT_FALSE(out.error) << *out.error;
    EXPECT_EQ(out.file.tempi, (std::vector<MidiFileTempo>{{0, 600000}, {240, 0x030000}}));
    EXPECT_EQ(tell(out.file.tracks.at(1)), "35:90.0(3c,40) 480:80.0(3c,00)");
    EXPECT_DOUBLE_EQ(MidiFileClock(out.file).seconds(endTick(out.file)), clock.seconds(endTick(in.file)));
}

}
}
