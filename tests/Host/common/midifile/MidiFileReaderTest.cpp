#include "Host/common/midifile/MidiFileReader.h"

#include "tests/Host/common/midifile/MidiFileTestBytes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Host {
namespace {

using namespace MidiFileTestBytes;

std::string repeated(const std::string& text, int times) {
    std::string out;
    for (int i = 0; i < times; ++i)
        out += text;
    return out;
}

struct TrackCase {
    const char* name;
    std::string body;      // Without the end of track.
    std::string expected;  // The events.
};

TEST(MidiFileReaderTest, EventsOfATrackAreReadAsTheyStand) {
    const std::vector<TrackCase> cases{
        {"no events", "", ""},
        {"each channel event",
         bytes({0, 0x80, 60, 1, 0, 0x91, 61, 2, 0, 0xa2, 62, 3, 0, 0xb3, 7, 4, 0, 0xc4, 5, 0, 0xd5, 6, 0, 0xef, 0, 64}),
         "0:80.0(3c,01) 0:90.1(3d,02) 0:a0.2(3e,03) 0:b0.3(07,04) 0:c0.4(05,00) 0:d0.5(06,00) 0:e0.f(00,40)"},
        {"deltas add up", bytes({1, 0x90, 60, 64, 2, 0x80, 60, 0}), "1:90.0(3c,40) 3:80.0(3c,00)"},
        {"deltas of one to four bytes",
         bytes({0x7f, 0xc0, 1, 0x81, 0x00, 0xc0, 2, 0x81, 0x80, 0x00, 0xc0, 3, 0xff, 0xff, 0xff, 0x7f, 0xc0, 4}),
         "127:c0.0(01,00) 255:c0.0(02,00) 16639:c0.0(03,00) 268452094:c0.0(04,00)"},
        {"running status of two data bytes", bytes({0, 0x93, 60, 64, 1, 61, 65, 1, 60, 0}),
         "0:90.3(3c,40) 1:90.3(3d,41) 2:90.3(3c,00)"},
        {"running status of one data byte", bytes({0, 0xc3, 1, 1, 2, 1, 3}),
         "0:c0.3(01,00) 1:c0.3(02,00) 2:c0.3(03,00)"},
        {"running status goes on over real-time bytes", bytes({0, 0x90, 60, 64, 1, 0xf8, 1, 61, 65}),
         "0:90.0(3c,40) 2:90.0(3d,41)"},
        {"sysex", bytes({5, 0xf0, 3, 0x43, 0x12, 0xf7}), "5:f0[4312f7]"},
        {"empty sysex", bytes({0, 0xf0, 0}), "0:f0[]"},
        {"sysex in three parts, statuses within",
         bytes({0, 0xf0, 2, 0x43, 0x12, 9, 0xf7, 1, 0x05, 9, 0xf7, 2, 0x90, 0xf7, 0, 0x90, 1, 2}),
         "0:f0[4312] 9:f7[05] 18:f7[90f7] 18:90.0(01,02)"},
        {"escape", bytes({0, 0xf7, 3, 0xf3, 1, 0xf8}), "0:f7[f301f8]"},
        {"sysex length of two bytes", bytes({0, 0xf0, 0x81, 0x00}) + std::string(127, '\x01') + '\xf7',
         "0:f0[" + repeated("01", 127) + "f7]"},
        {"metas", bytes({0, 0xff, 3, 2, 'a', 'b', 1, 0xff, 0x51, 3, 7, 0xa1, 0x20, 1, 0xff, 0x7e, 0}),
         "0:ff03[6162] 1:ff51[07a120] 2:ff7e[]"},
        {"real-time and system common messages are passed over, their time counts",
         bytes({1,    0xf1, 5,    1, 0xf2, 5, 6,    1, 0xf3, 5, 1,    0xf6, 1,    0xf8, 1,
                0xf9, 1,    0xfa, 1, 0xfb, 1, 0xfc, 1, 0xfd, 1, 0xfe, 1,    0xc0, 9}),
         "12:c0.0(09,00)"},
    };

    for (const TrackCase& c : cases) {
        const MidiFileResult result = readMidiFile(oneTrack(c.body + END));
        ASSERT_FALSE(result.error) << c.name << ": " << *result.error;
        ASSERT_EQ(result.file.tracks.size(), 1u) << c.name;
        EXPECT_EQ(tell(result.file.tracks[0]), c.expected) << c.name;
        EXPECT_EQ(result.file.counts.tracksWithoutEnd, 0u) << c.name;
    }
}

struct ErrorCase {
    const char* name;
    std::string file;
    std::string expected;
};

TEST(MidiFileReaderTest, BadTracksAreRefusedWithPlaceAndReason) {
    const std::string varLength = "a variable-length number of more than four bytes";
    const std::string noStatus = "a data byte without a status before it";
    const std::string wrongStatus = "a status where a data byte belongs";

    const std::vector<ErrorCase> cases{
        {"data before any status", bytes({0, 60, 64}), "byte 23, track 1: " + noStatus},
        {"data after a meta", bytes({0, 0x90, 60, 64, 0, 0xff, 1, 0, 0, 60, 64}), "byte 31, track 1: " + noStatus},
        {"data after a sysex", bytes({0, 0x90, 60, 64, 0, 0xf0, 1, 0xf7, 0, 60, 64}), "byte 31, track 1: " + noStatus},
        {"data after an escape", bytes({0, 0x90, 60, 64, 0, 0xf7, 1, 0xf8, 0, 60, 64}),
         "byte 31, track 1: " + noStatus},
        {"data after a system common message", bytes({0, 0x90, 60, 64, 0, 0xf6, 0, 60, 64}),
         "byte 29, track 1: " + noStatus},
        {"status for the first data byte", bytes({0, 0x90, 0x80, 64}), "byte 24, track 1: " + wrongStatus},
        {"status for the second data byte", bytes({0, 0x90, 60, 0xff}), "byte 25, track 1: " + wrongStatus},
        {"status for the second byte of running data", bytes({0, 0x90, 60, 64, 0, 60, 0x90}),
         "byte 28, track 1: " + wrongStatus},
        {"status in a system common message", bytes({0, 0xf2, 1, 0x90}), "byte 25, track 1: " + wrongStatus},
        {"undefined f4", bytes({0, 0xf4}), "byte 23, track 1: a system message of unknown length in a track"},
        {"undefined f5", bytes({0, 0xf5}), "byte 23, track 1: a system message of unknown length in a track"},
        {"delta of five bytes", bytes({0x81, 0x80, 0x80, 0x80, 0, 0xc0, 1}), "byte 22, track 1: " + varLength},
        {"meta length of five bytes", bytes({0, 0xff, 1, 0xff, 0xff, 0xff, 0xff, 0x7f}),
         "byte 25, track 1: " + varLength},
        {"sysex of 256 MB in a few bytes", bytes({0, 0xf0, 0xff, 0xff, 0xff, 0x7f, 1}),
         "byte 28, track 1: 268435455 bytes expected, but the file ends at byte 29"},
        {"meta longer than the track", bytes({0, 0xff, 1, 3, 'a'}),
         "byte 26, track 1: 3 bytes expected, but the file ends at byte 27"},
        {"end in a delta", bytes({0x81}), "byte 23, track 1: 1 byte expected, but the file ends at byte 23"},
        {"end after a delta", bytes({0}), "byte 23, track 1: 1 byte expected, but the file ends at byte 23"},
        {"end in a channel event", bytes({0, 0x90, 60}),
         "byte 25, track 1: 1 byte expected, but the file ends at byte 25"},
        {"end in a meta", bytes({0, 0xff}), "byte 24, track 1: 1 byte expected, but the file ends at byte 24"},
    };

    for (const ErrorCase& c : cases) {
        const MidiFileResult result = readMidiFile(oneTrack(c.file));
        EXPECT_EQ(result.error.value_or("none"), c.expected) << c.name;
        EXPECT_TRUE(result.file.tracks.empty()) << c.name;
        EXPECT_EQ(result.file.counts.metas, 0u) << c.name;
    }
}

TEST(MidiFileReaderTest, AnEventMayNotReachIntoTheNextTrack) {
    const std::string file =
        header(1, 2, 96) + chunk("MTrk", END) + chunk("MTrk", bytes({0, 0x90, 60})) + chunk("MTrk", END);
    EXPECT_EQ(readMidiFile(file).error.value_or("none"),
              "byte 37, track 2: 1 byte expected, but the track ends at byte 37");
}

TEST(MidiFileReaderTest, BadHeadersAndChunksAreRefusedWithPlaceAndReason) {
    const std::string noHeader = "byte 0: not a standard MIDI file: its header is missing";
    const std::vector<ErrorCase> cases{
        {"nothing", "", noHeader},
        {"three bytes", "MTh", noHeader},
        {"garbage", "this is a text, no music", noHeader},
        {"track without a header", chunk("MTrk", END), noHeader},
        {"identifier only", "MThd", "byte 4: 4 bytes expected, but the file ends at byte 4"},
        {"cut off in the header", header(1, 1, 96).substr(0, 11),
         "byte 10: 2 bytes expected, but the file ends at byte 11"},
        {"short header", chunk("MThd", bytes({0, 1, 0, 0})), "byte 4: a header of 4 bytes, at least 6 expected"},
        {"longer header cut off", "MThd" + bigEndian(8, 4) + bytes({0, 1, 0, 0, 0, 96, 0}),
         "byte 14: 2 bytes expected, but the file ends at byte 15"},
        {"header of 4 GB", "MThd" + bigEndian(0xffffffff, 4) + bytes({0, 1, 0, 0, 0, 96}),
         "byte 14: 4294967289 bytes expected, but the file ends at byte 14"},
        {"format 2", header(2, 1, 96) + chunk("MTrk", END),
         "byte 8: format 2 (patterns without an order) can't be read, only 0 and 1"},
        {"format 3", header(3, 1, 96) + chunk("MTrk", END), "byte 8: unknown format 3, only 0 and 1 can be read"},
        {"division 0", header(1, 0, 0), "byte 12: a division of zero ticks per quarter note"},
        {"23 frames", header(1, 0, 0xe928), "byte 12: an unknown rate of 23 frames"},
        {"128 frames", header(1, 0, 0x8028), "byte 12: an unknown rate of 128 frames"},
        {"no ticks to the frame", header(1, 0, 0xe700), "byte 12: a division of zero ticks per frame"},
        {"no track", header(1, 1, 96), "byte 14: track 1 of 1 is missing, the file ends at byte 14"},
        {"one track of two", header(1, 2, 96) + chunk("MTrk", END),
         "byte 26: track 2 of 2 is missing, the file ends at byte 26"},
        {"65535 tracks claimed", header(1, 0xffff, 96) + chunk("MTrk", END) + "MTrk",
         "byte 26: track 2 of 65535 is missing, the file ends at byte 30"},
        {"track cut off", header(1, 1, 96) + "MTrk" + bigEndian(5, 4) + END,
         "byte 14: track 1 of 5 bytes is cut off, the file ends at byte 26"},
        {"track of 4 GB", header(1, 1, 96) + "MTrk" + bigEndian(0xffffffff, 4) + END,
         "byte 14: track 1 of 4294967295 bytes is cut off, the file ends at byte 26"},
        {"unknown chunk cut off", header(1, 1, 96) + "XYZ " + bigEndian(9, 4),
         "byte 14: a chunk of 9 bytes is cut off, the file ends at byte 22"},
    };

    for (const ErrorCase& c : cases) {
        const MidiFileResult result = readMidiFile(c.file);
        EXPECT_EQ(result.error.value_or("none"), c.expected) << c.name;
        EXPECT_TRUE(result.file.tracks.empty()) << c.name;
    }
}

TEST(MidiFileReaderTest, EveryTruncationOfAFileIsAnError) {
    const std::string file = header(1, 2, 96) + chunk("MTrk", bytes({0, 0xff, 0x51, 3, 7, 0xa1, 0x20}) + END) +
                             chunk("MTrk", bytes({0, 0x90, 60, 64, 0x81, 0, 60, 0, 0, 0xf0, 2, 1, 0xf7}) + END);
    ASSERT_FALSE(readMidiFile(file).error);
    for (std::size_t size = 0; size < file.size(); ++size)
        EXPECT_TRUE(readMidiFile(file.substr(0, size)).error) << size;
}

TEST(MidiFileReaderTest, FormatAndDivisionComeFromTheHeader) {
    struct Case {
        std::size_t format;
        std::size_t word;
        MidiFileDivision expected;
    };

    for (const Case& c :
         {Case{0, 1, {1, 0, 0}}, Case{1, 480, {480, 0, 0}}, Case{1, 0x7fff, {32767, 0, 0}}, Case{1, 0xe804, {0, 24, 4}},
          Case{1, 0xe728, {0, 25, 40}}, Case{1, 0xe350, {0, 29, 80}}, Case{0, 0xe2ff, {0, 30, 255}}}) {
        const MidiFileResult result = readMidiFile(header(c.format, 0, c.word));
        ASSERT_FALSE(result.error) << c.word << *result.error;
        EXPECT_EQ(result.file.format, static_cast<int>(c.format));
        EXPECT_EQ(result.file.division, c.expected) << c.word;
        EXPECT_TRUE(result.file.tracks.empty());
    }
}

TEST(MidiFileReaderTest, ALongerHeaderIsReadAsTheKnownOne) {
    const std::string head = chunk("MThd", bytes({0, 1, 0, 1, 0, 96, 1, 2, 3}));
    const MidiFileResult result = readMidiFile(head + chunk("MTrk", bytes({0, 0xc0, 1}) + END));
    ASSERT_FALSE(result.error) << *result.error;
    EXPECT_EQ(tell(result.file.tracks.at(0)), "0:c0.0(01,00)");
}

TEST(MidiFileReaderTest, UnknownChunksAndTrailingBytesAreCountedNotRead) {
    const std::string track = chunk("MTrk", bytes({0, 0xc0, 1}) + END);
    const std::string file =
        header(1, 2, 96) + chunk("XFIH", "abc") + track + chunk("    ", "") + track + chunk("XFKM", "d") + "rest";
    const MidiFileResult result = readMidiFile(file);
    ASSERT_FALSE(result.error) << *result.error;
    EXPECT_EQ(result.file.tracks.size(), 2u);
    EXPECT_EQ(result.file.counts.unknownChunks, 2u);
    EXPECT_EQ(result.file.counts.bytesAfterLastTrack, 8u + 1u + 4u);
    EXPECT_EQ(result.file.counts.channelEventsOf(0xc0), 2u);
}

TEST(MidiFileReaderTest, TracksWithoutAnEndOrWithBytesBehindItAreCounted) {
    const std::string file = header(1, 4, 96) + chunk("MTrk", "") + chunk("MTrk", bytes({7, 0xc0, 1})) +
                             chunk("MTrk", bytes({7, 0xc0, 1, 5, 0xff, 0x2f, 0, 0, 0xc0, 2})) +
                             chunk("MTrk", bytes({3, 0xff, 0x2f, 1, 0}));
    const MidiFileResult result = readMidiFile(file);
    ASSERT_FALSE(result.error) << *result.error;
    ASSERT_EQ(result.file.tracks.size(), 4u);
    EXPECT_EQ(result.file.tracks[0], MidiFileTrack{});
    EXPECT_EQ(result.file.tracks[1].endTick, 7);
    EXPECT_EQ(result.file.tracks[2].endTick, 12);
    EXPECT_EQ(tell(result.file.tracks[2]), "7:c0.0(01,00)");
    EXPECT_EQ(result.file.tracks[3].endTick, 3);
    EXPECT_EQ(endTick(result.file), 12);
    EXPECT_EQ(result.file.counts.tracksWithoutEnd, 2u);
    EXPECT_EQ(result.file.counts.bytesAfterTrackEnds, 3u);
}

TEST(MidiFileReaderTest, EachKindOfEventIsCounted) {
    std::string body;
    for (int kind = 0; kind < 7; ++kind)
        for (int i = 0; i <= kind; ++i)
            body += bytes({0, 0x80 + 0x10 * kind + i, 1}) + (kind == 4 || kind == 5 ? "" : "\x02");

    body += bytes({0, 0xf0, 1, 1, 0, 0xf7, 1, 2, 0, 0xf7, 1, 0xf7, 0, 0xf7, 1, 0xf8, 0, 0xf0, 1, 0xf7, 0, 0xf7, 1, 5});
    body += bytes({0, 0xff, 0x51, 2, 1, 1, 0, 0xff, 0x51, 3, 0, 0, 0, 0, 0xff, 0x58, 3, 4, 2, 24, 0, 0xff, 1, 0});
    body += bytes({0, 0xf8, 0, 0xf2, 1, 2});

    const MidiFileResult result = readMidiFile(oneTrack(body + END));
    ASSERT_FALSE(result.error) << *result.error;

    const MidiFileCounts& counts = result.file.counts;
    for (std::size_t kind = 0; kind < 7; ++kind)
        EXPECT_EQ(counts.channelEventsOf(static_cast<std::uint8_t>(0x80 + 0x10 * kind)), kind + 1);

    EXPECT_EQ(counts.channelEventsOf(0xf0), 0u);
    EXPECT_EQ(counts.channelEventsOf(0x7f), 0u);
    EXPECT_EQ(counts.sysexes, 2u);
    EXPECT_EQ(counts.continuations, 2u);
    EXPECT_EQ(counts.escapes, 2u);
    EXPECT_EQ(counts.metas, 5u);
    EXPECT_EQ(counts.malformedMetas, 3u);
    EXPECT_EQ(counts.skippedSystemMessages, 2u);
    EXPECT_TRUE(result.file.tempi.empty());
    EXPECT_TRUE(result.file.timeSignatures.empty());
}

TEST(MidiFileReaderTest, TempiAndTimeSignaturesOfAllTracksAreMerged) {
    const std::string first = bytes({0,  0xff, 0x51, 3, 7, 0xa1, 0x20,          // tick 0: 500000
                                     10, 0xff, 0x51, 3, 0, 0,    1,             // tick 10: 1
                                     10, 0xff, 0x58, 4, 3, 2,    24,   8});     // tick 20: 3/4
    const std::string second = bytes({5, 0xff, 0x51, 4, 0xff, 0xff, 0xff, 9,    // tick 5: the slowest, a byte too many
                                      5, 0xff, 0x51, 3, 0,    0,    2,          // tick 10: 2
                                      0, 0xff, 0x51, 3, 0,    0,    3,          // tick 10: 3
                                      0, 0xff, 0x58, 4, 6,    3,    36,   8});  // tick 10: 6/8
    const std::string file = header(1, 2, 96) + chunk("MTrk", first + END) + chunk("MTrk", second + END);
    const MidiFileResult result = readMidiFile(file);
    ASSERT_FALSE(result.error) << *result.error;
    EXPECT_EQ(result.file.tempi, (std::vector<MidiFileTempo>{{0, 500000}, {5, 0xffffff}, {10, 3}}));
    EXPECT_EQ(result.file.timeSignatures, (std::vector<MidiFileTimeSignature>{{10, 6, 3}, {20, 3, 2}}));
}

TEST(MidiFileReaderTest, TheFirstNameOfATrackIsItsName) {
    const MidiFileResult result =
        readMidiFile(oneTrack(bytes({0, 0xff, 3, 2, 'Z', 0xeb, 0, 0xff, 3, 1, 'b', 0, 0xff, 1, 1, 'c'}) + END));
    ASSERT_FALSE(result.error) << *result.error;
    EXPECT_EQ(result.file.tracks.at(0).name, "Z\xeb");
}

TEST(MidiFileReaderTest, RunningStatusDoesNotReachTheNextTrack) {
    const std::string file =
        header(1, 2, 96) + chunk("MTrk", bytes({0, 0x90, 60, 64}) + END) + chunk("MTrk", bytes({0, 60, 64}) + END);
    EXPECT_EQ(readMidiFile(file).error.value_or("none"), "byte 39, track 2: a data byte without a status before it");
}

TEST(MidiFileReaderTest, MoreEventsThanAskedForAreRefused) {
    const std::string file =
        header(1, 2, 96) + chunk("MTrk", bytes({0, 0xc0, 1, 0, 2}) + END) + chunk("MTrk", bytes({0, 0xf8}) + END);
    EXPECT_FALSE(readMidiFile(file, 5).error);
    EXPECT_EQ(readMidiFile(file, 4).error.value_or("none"), "byte 41, track 2: more than 4 events");
    EXPECT_TRUE(readMidiFile(file, 4).file.tracks.empty());
}

TEST(MidiFileReaderTest, ALimitAboveTheGreatestIsTheGreatest) {
    std::string body = bytes({0, 0xc0, 1});
    for (std::size_t i = 0; i < MIDI_FILE_MAX_EVENTS; ++i)
        body += bytes({0, 1});
    const MidiFileResult result = readMidiFile(oneTrack(body), ~std::size_t{0});
    const std::size_t at = 22 + 3 + 2 * (MIDI_FILE_MAX_EVENTS - 1);
    EXPECT_EQ(result.error.value_or("none"), "byte " + std::to_string(at) + ", track 1: more than 4194304 events");
}

TEST(MidiFileReaderTest, TimesBeyond32BitsAreKept) {
    std::string body;
    for (int i = 0; i < 20; ++i)
        body += bytes({0xff, 0xff, 0xff, 0x7f, 0xc0, i});
    const MidiFileResult result = readMidiFile(oneTrack(body + END));
    ASSERT_FALSE(result.error) << *result.error;
    EXPECT_EQ(result.file.tracks.at(0).events.back().tick, std::int64_t{20} * 0x0fffffff);
    EXPECT_EQ(endTick(result.file), std::int64_t{20} * 0x0fffffff);
}

TEST(MidiFileReaderTest, MergedEventsGoByTimeThenByTrack) {
    const std::string file = header(1, 3, 96) + chunk("MTrk", bytes({0, 0xc0, 1, 10, 0xc0, 2, 0, 0xc0, 3}) + END) +
                             chunk("MTrk", bytes({0, 0xc1, 4, 5, 0xc1, 5, 5, 0xc1, 6}) + END) +
                             chunk("MTrk", bytes({10, 0xc2, 7}) + END);
    const MidiFileResult result = readMidiFile(file);
    ASSERT_FALSE(result.error) << *result.error;
    std::string told;
    for (const MidiFileMergedEvent& merged : mergedEvents(result.file))
        told += std::to_string(merged.track) + "/" + std::to_string(merged.event->d1) + " ";
    EXPECT_EQ(told, "0/1 1/4 1/5 0/2 0/3 1/6 2/7 ");
}

}
}
