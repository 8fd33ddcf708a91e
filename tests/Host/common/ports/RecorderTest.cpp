#include "Host/common/ports/Recorder.h"

#include "Host/common/midifile/MidiFileReader.h"
#include "Platform/Files.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <thread>

namespace Host {
namespace {

constexpr std::int64_t SECOND = 1000000;
constexpr std::int64_t START = 5000 * SECOND;

OutputEvent event(unsigned status, unsigned d1, unsigned d2, std::int64_t microseconds) {
    return {d2 << 16 | d1 << 8 | status, microseconds};
}

MidiFile fileOf(const Recorder& recorder) {
    const auto content = recorder.content();
    EXPECT_TRUE(content);
    MidiFileResult result = readMidiFile(content.value_or(""));
    EXPECT_FALSE(result.error) << *result.error;
    return result.file;
}

std::vector<MidiFileEvent> channelEventsOf(const MidiFile& file) {
    std::vector<MidiFileEvent> events;
    for (const MidiFileTrack& track : file.tracks)
        for (const MidiFileEvent& e : track.events)
            if (e.isChannelEvent())
                events.push_back(e);
    return events;
}

TEST(RecorderTest, FileBeginsWithTheFirstEventInRealTime) {
    Recorder recorder;
    recorder.record(event(0x93, 60, 100, START));
    recorder.record(event(0xe3, 1, 2, START + SECOND / 2));
    recorder.record(event(0xc3, 7, 0, START + SECOND));
    recorder.record(event(0x83, 60, 64, START + SECOND));
    EXPECT_EQ(channelEventsOf(fileOf(recorder)), (std::vector<MidiFileEvent>{{0, 0x90, 3, 60, 100, ""},
                                                                             {480, 0xe0, 3, 1, 2, ""},
                                                                             {960, 0xc0, 3, 7, 0, ""},
                                                                             {960, 0x80, 3, 60, 64, ""}}));
}

TEST(RecorderTest, TempoOfTheDeskIsThatOfTheFile) {
    Recorder recorder;
    recorder.setTempo(90, START - SECOND);
    recorder.setTempo(60, START - SECOND / 2);
    recorder.record(event(0x90, 60, 100, START));
    recorder.setTempo(120, START + SECOND);
    recorder.record(event(0x80, 60, 100, START + 2 * SECOND));
    const MidiFile file = fileOf(recorder);
    EXPECT_EQ(file.tempi, (std::vector<MidiFileTempo>{{0, 1000000}, {480, 500000}}));
    EXPECT_EQ(channelEventsOf(file).back().tick, 480 + 960);
}

TEST(RecorderTest, TempoSetAfterTheLastEventAndOutOfRangeChangesNothing) {
    Recorder recorder;
    recorder.setTempo(0, START);
    recorder.setTempo(-5, START);
    recorder.setTempo(100000, START);
    recorder.record(event(0x90, 60, 100, START));
    recorder.setTempo(60, START + SECOND);
    EXPECT_EQ(fileOf(recorder).tempi, (std::vector<MidiFileTempo>{{0, 1000000}}))
        << "the only tempo there is counts from the start";
}

TEST(RecorderTest, OldestEventsMakeRoomAndLeaveNoEndWithoutABeginning) {
    Recorder recorder(4);
    recorder.record(event(0x90, 60, 100, START));
    recorder.record(event(0x90, 61, 100, START + 1));
    recorder.record(event(0xb0, 7, 100, START + SECOND));
    recorder.record(event(0x80, 60, 0, START + SECOND));
    recorder.record(event(0x90, 62, 100, START + SECOND));
    recorder.record(event(0x80, 62, 0, START + 2 * SECOND));
    EXPECT_EQ(recorder.size(), 4u);
    EXPECT_EQ(
        channelEventsOf(fileOf(recorder)),
        (std::vector<MidiFileEvent>{{0, 0xb0, 0, 7, 100, ""}, {0, 0x90, 0, 62, 100, ""}, {960, 0x80, 0, 62, 0, ""}}));
}

TEST(RecorderTest, OnlyChannelEventsAreInTheFile) {
    Recorder recorder;
    recorder.record(event(0xf8, 0, 0, START));
    recorder.record(event(0xff, 0, 0, START));
    recorder.record(event(0x90, 200, 100, START));
    EXPECT_TRUE(channelEventsOf(fileOf(recorder)).empty());
}

TEST(RecorderTest, EmptyRecorderMakesAnEmptyFile) {
    Recorder recorder;
    EXPECT_TRUE(channelEventsOf(fileOf(recorder)).empty());
    recorder.record(event(0x90, 60, 100, START));
    recorder.clear();
    EXPECT_EQ(recorder.size(), 0u);
    EXPECT_TRUE(channelEventsOf(fileOf(recorder)).empty());
}

TEST(RecorderTest, FileIsWrittenOnRequest) {
    const TestSupport::TemporaryFolder folder;
    Recorder recorder;
    recorder.record(event(0x90, 60, 100, START));
    ASSERT_TRUE(recorder.write(folder.file("a.mid")));
    EXPECT_EQ(Platform::Files::read(folder.file("a.mid")), recorder.content());
    EXPECT_FALSE(recorder.write(folder.file("missing/a.mid")));
}

TEST(RecorderTest, PortFeedsTheRecorder) {
    const auto recorder = std::make_shared<Recorder>();
    const auto port = openRecorder(recorder);
    const std::array<std::uint8_t, 3> bytes = {0x90, 60, 100};
    EXPECT_TRUE(port->send(bytes.data(), bytes.size(), START));
    EXPECT_EQ(channelEventsOf(fileOf(*recorder)), (std::vector<MidiFileEvent>{{0, 0x90, 0, 60, 100, ""}}));
}

TEST(RecorderTest, FileMayBeMadeWhileMoreIsRecorded) {
    Recorder recorder(1000);
    std::thread player([&recorder] {
        for (unsigned i = 0; i < 20000; ++i) {
            recorder.record(event(i % 2 == 0 ? 0x90 : 0x80, 60, 100, START + i));
            if (i % 100 == 0)
                recorder.setTempo(static_cast<int>(60 + i % 60), START + i);
        }
    });
    for (int i = 0; i < 20; ++i)
        fileOf(recorder);
    player.join();
    EXPECT_EQ(recorder.size(), 1000u);
}

}
}
