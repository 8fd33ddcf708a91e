// Real files: the free music of Debian's package openttd-openmsx (0.4.2), written by many hands with many programs. The
// numbers come from another reader, python3-mido.
#include "Host/common/midifile/MidiFileClock.h"
#include "Host/common/midifile/MidiFileReader.h"
#include "Host/common/midifile/MidiFileWriter.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace Host {
namespace {

const std::filesystem::path FOLDER = "/usr/share/games/openttd/baseset/openmsx";

struct Song {
    const char* name;
    std::size_t tracks;
    int division;
    std::size_t noteOffs;
    std::size_t noteOns;
    std::size_t controlChanges;
    std::size_t programChanges;
    std::size_t channelPressures;
    std::size_t pitchBends;
    std::size_t metas;
    std::int64_t endTick;
    double seconds;
};

const Song SONGS[] = {
    {"5432gone_redfarn", 6, 256, 0, 2548, 30, 6, 0, 0, 22, 30721, 60.002},
    {"be_sharp_bw_redfarn", 5, 256, 0, 7402, 25, 5, 0, 0, 33, 64513, 139.359},
    {"boogi_marabi_redfarn", 5, 256, 0, 6384, 25, 5, 0, 0, 18, 65281, 100.001},
    {"busy_schedule", 17, 96, 3137, 3137, 249, 66, 0, 112, 34, 28225, 131.646},
    {"careless_perc_redfarn", 4, 256, 0, 3544, 15, 5, 0, 0, 15, 43009, 157.504},
    {"chemistry_lab", 7, 480, 1310, 1310, 662, 11, 0, 12, 16, 123120, 129.328},
    {"chuggachugga", 7, 192, 0, 3104, 12, 6, 0, 40, 27, 46858, 83.868},
    {"city_blues_redfarn", 5, 256, 0, 3688, 25, 5, 0, 0, 166, 38913, 76.002},
    {"coconut_run2", 6, 480, 843, 843, 149, 9, 0, 9, 14, 97920, 68.000},
    {"flying_scotsman", 7, 192, 0, 4710, 12, 8, 0, 0, 26, 57550, 89.922},
    {"harp_harmony", 6, 480, 2025, 2025, 72, 8, 0, 371, 14, 138240, 132.923},
    {"keep_on_rolling", 12, 480, 6098, 6094, 119, 10, 0, 1162, 26, 163200, 196.154},
    {"linns_basket", 8, 480, 3999, 3999, 1785, 13, 0, 13, 18, 230520, 240.125},
    {"midnight_snow_run", 7, 480, 2004, 2004, 947, 11, 0, 11, 80, 145920, 139.140},
    {"mighty_giant_run", 9, 480, 2296, 2296, 84, 14, 0, 14, 20, 145920, 114.000},
    {"modern_motion", 11, 96, 3432, 3432, 320, 60, 0, 70, 44, 29569, 154.005},
    {"moo_redfarn", 3, 256, 0, 5242, 20, 4, 0, 0, 36, 74753, 146.002},
    {"mosey_along_redfarn", 5, 256, 0, 4894, 25, 5, 0, 0, 18, 45057, 75.430},
    {"no_work_song_redfarn", 5, 256, 0, 7132, 25, 309, 0, 0, 17, 61371, 130.762},
    {"relax_song", 8, 480, 3462, 3462, 2493, 13, 0, 13, 18, 184320, 192.000},
    {"run_for_your_life", 6, 480, 4667, 4667, 45, 5, 0, 5, 14, 334080, 245.647},
    {"say_what_redfarn", 4, 256, 0, 4522, 32, 6, 0, 0, 16, 53249, 87.274},
    {"slow_neasy_redfarn", 6, 256, 0, 3574, 30, 6, 0, 0, 27, 43009, 74.668},
    {"the_fast_route", 7, 96, 3671, 3671, 12, 5, 0, 6, 14, 33670, 164.404},
    {"the_hobo_redfarn", 5, 256, 0, 5802, 25, 5, 0, 0, 18, 73729, 137.145},
    {"train_filled_with_cash", 5, 192, 0, 1882, 13, 3, 0, 2, 18, 20128, 69.889},
    {"ttsong_iii_imuh3", 5, 192, 0, 3794, 8, 4, 0, 0, 20, 24958, 64.995},
    {"ttsong_iv_imuh3", 7, 192, 0, 4954, 12, 6, 0, 0, 24, 29278, 114.367},
    {"tttheme2", 14, 480, 4056, 4056, 58, 19, 891, 2260, 40, 87562, 103.257},
    {"ultimate_run", 5, 480, 1120, 1120, 63, 7, 0, 7, 12, 88320, 73.600},
    {"wood_whistles", 5, 480, 1660, 1660, 63, 7, 0, 7, 12, 117120, 122.000},
};

std::string contentOf(const Song& song) {
    std::ifstream stream(FOLDER / (std::string(song.name) + ".mid"), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

TEST(MidiFileSongsTest, TheTableHasEveryFile) {
    std::size_t count = 0;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(FOLDER, error))
        count += entry.path().extension() == ".mid";
    ASSERT_FALSE(error) << "install openttd-openmsx: " << error.message();
    EXPECT_EQ(count, std::size(SONGS));
}

TEST(MidiFileSongsTest, EventsAndLengthAreThoseOfAnotherReader) {
    for (const Song& song : SONGS) {
        const MidiFileResult result = readMidiFile(contentOf(song));
        ASSERT_FALSE(result.error) << song.name << ": " << *result.error;
        const MidiFileCounts& counts = result.file.counts;
        EXPECT_EQ(result.file.format, 1) << song.name;
        EXPECT_EQ(result.file.tracks.size(), song.tracks) << song.name;
        EXPECT_EQ(result.file.division, (MidiFileDivision{song.division, 0, 0})) << song.name;
        EXPECT_EQ(counts.channelEventsOf(0x80), song.noteOffs) << song.name;
        EXPECT_EQ(counts.channelEventsOf(0x90), song.noteOns) << song.name;
        EXPECT_EQ(counts.channelEventsOf(0xa0), 0u) << song.name;
        EXPECT_EQ(counts.channelEventsOf(0xb0), song.controlChanges) << song.name;
        EXPECT_EQ(counts.channelEventsOf(0xc0), song.programChanges) << song.name;
        EXPECT_EQ(counts.channelEventsOf(0xd0), song.channelPressures) << song.name;
        EXPECT_EQ(counts.channelEventsOf(0xe0), song.pitchBends) << song.name;
        EXPECT_EQ(counts.metas, song.metas) << song.name;
        EXPECT_EQ(counts.malformedMetas, 0u) << song.name;
        EXPECT_EQ(counts.tracksWithoutEnd, 0u) << song.name;
        EXPECT_EQ(counts.skippedSystemMessages, 0u) << song.name;
        EXPECT_EQ(endTick(result.file), song.endTick) << song.name;
        EXPECT_NEAR(MidiFileClock(result.file).seconds(song.endTick), song.seconds, 0.002) << song.name;
    }
}

TEST(MidiFileSongsTest, WrittenInPpqAndReadBackTheyAreTheSame) {
    for (const Song& song : SONGS) {
        const MidiFileResult result = readMidiFile(contentOf(song));
        ASSERT_FALSE(result.error) << song.name << ": " << *result.error;
        const MidiFileClock clock(result.file);
        MidiFileWriter writer;
        std::vector<MidiFileTrack> expected = result.file.tracks;
        for (std::size_t i = 0; i < expected.size(); ++i) {
            const std::size_t track = i == 0 ? MidiFileWriter::CONDUCTOR : writer.addTrack();
            for (MidiFileEvent& event : expected[i].events) {
                event.tick = clock.ppq(event.tick);
                ASSERT_TRUE(writer.add(track, event)) << song.name;
            }
            expected[i].endTick = clock.ppq(expected[i].endTick);
            ASSERT_TRUE(writer.setEnd(track, expected[i].endTick)) << song.name;
        }
        const MidiFileResult back = readMidiFile(writer.content(MidiFileWriter::Layout::TRACKS).value());
        ASSERT_FALSE(back.error) << song.name << ": " << *back.error;
        EXPECT_TRUE(back.file.tracks == expected) << song.name;
        EXPECT_EQ(MidiFileClock(back.file).ppqTempi(), clock.ppqTempi()) << song.name;
    }
}

}
}
