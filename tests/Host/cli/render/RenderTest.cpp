#include "Host/cli/render/RenderCommand.h"
#include "Host/common/midifile/MidiFileReader.h"
#include "Host/common/midifile/MidiFileWriter.h"
#include "Platform/Files.h"
#include "tests/support/CurrentFolder.h"
#include "tests/support/ProjectFolder.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <set>

namespace Host::Cli {
namespace {

constexpr std::uint8_t NOTE_ON = 0x90;
constexpr std::uint8_t NOTE_OFF = 0x80;
constexpr std::uint8_t CONTROLLER = 0xb0;

MidiFileEvent event(std::int64_t ppq, std::uint8_t status, std::uint8_t channel, std::uint8_t d1, std::uint8_t d2) {
    MidiFileEvent made;
    made.tick = ppq;
    made.status = status;
    made.channel = channel;
    made.d1 = d1;
    made.d2 = d2;
    return made;
}

class RenderTest : public testing::Test {
protected:
    std::string path(const std::string& name) const { return m_folder.file(name); }

    void writeInput(const std::vector<MidiFileEvent>& events) {
        MidiFileWriter writer;
        writer.add(MidiFileWriter::CONDUCTOR, makeTempo(0, 600000));
        const std::size_t track = writer.addTrack();
        for (const MidiFileEvent& made : events)
            ASSERT_TRUE(writer.add(track, made));
        ASSERT_TRUE(Platform::Files::replace(path("in.mid"), *writer.content(MidiFileWriter::Layout::TRACKS)));
    }

    int render(std::vector<std::string> options = {}) {
        std::vector<std::string> arguments = {path("in.mid"), path("out.mid")};
        arguments.insert(arguments.end(), options.begin(), options.end());
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        const int status = runRender(arguments);
        m_printed = testing::internal::GetCapturedStdout();
        m_complained = testing::internal::GetCapturedStderr();
        return status;
    }

    int renderWithLayers(const std::string& xml, std::vector<std::string> options = {}) {
        EXPECT_TRUE(Platform::Files::replace(path("layers.pst"), xml));
        options.insert(options.end(), {"--layers", path("layers.pst")});
        return render(std::move(options));
    }

    // The channel events of the output, as "ppq status channel d1 d2".
    std::vector<std::string> output() const {
        std::vector<std::string> lines;
        const auto bytes = Platform::Files::read(path("out.mid"));
        if (!bytes)
            return lines;
        const MidiFileResult result = readMidiFile(*bytes);
        EXPECT_FALSE(result.error) << *result.error;
        for (const MidiFileMergedEvent& merged : mergedEvents(result.file)) {
            if (!merged.event->isChannelEvent())
                continue;
            const char* const kind = merged.event->status == NOTE_ON    ? "on"
                                     : merged.event->status == NOTE_OFF ? "off"
                                                                        : "other";
            lines.push_back(std::to_string(merged.event->tick) + " " + kind + " ch" +
                            std::to_string(merged.event->channel) + " " + std::to_string(merged.event->d1) + " " +
                            std::to_string(merged.event->d2));
        }
        return lines;
    }

    // Checks the result of a failing call: one line that begins with the file's name, status 2 and no output.
    void expectRefusal(int status, const std::string& file, const std::string& text) {
        EXPECT_EQ(status, 2);
        EXPECT_EQ(m_complained, path(file) + ": " + text + "\n");
        EXPECT_FALSE(Platform::Files::size(path("out.mid")));
    }

    TestSupport::TemporaryFolder m_folder;
    std::string m_printed;
    std::string m_complained;
};

TEST_F(RenderTest, APlainFileComesOutInItsOwnTime) {
    writeInput({event(0, NOTE_ON, 0, 60, 100), event(7, CONTROLLER, 0, 7, 50), event(480, NOTE_OFF, 0, 60, 30)});
    ASSERT_EQ(render(), 0) << m_complained;
    EXPECT_EQ(output(), (std::vector<std::string>{"0 on ch0 60 100", "7 other ch0 7 50", "480 off ch0 60 30"}));
}

TEST_F(RenderTest, PresetsComeFromTheDataFolderAndNeverFromTheCurrentOne) {
    writeInput({event(0, NOTE_ON, 0, 60, 100), event(400, NOTE_OFF, 0, 60, 30)});
    for (const char* file : {"p.seq", "Sequences/p.seq"}) {
        ASSERT_TRUE(Platform::Files::createFolders(path("Sequences")));
        ASSERT_TRUE(Platform::Files::replace(path(file), "<Sequence>7</Sequence>"));
    }

    const std::string layers =
        "<Layers><Layer><Arpeggio><UpArpeggio beat='480' length='120'/></Arpeggio>"
        "<SequenceSetting preset='p'/></Layer></Layers>";
    ASSERT_EQ(renderWithLayers(layers, {"--data", m_folder.path()}), 0) << m_complained;
    EXPECT_EQ(output(), (std::vector<std::string>{"0 on ch0 67 100", "120 off ch0 67 100"}));

    const TestSupport::CurrentFolder there(m_folder.path());
    ASSERT_EQ(renderWithLayers(layers), 0) << m_complained;
    EXPECT_EQ(output(), (std::vector<std::string>{"0 on ch0 60 100", "120 off ch0 60 100"}));
}

TEST_F(RenderTest, ItReportsWhatItReadPlayedAndDropped) {
    MidiFileEvent sysex;
    sysex.status = MIDI_FILE_SYSEX;
    sysex.data = "\x7e\x7f\xf7";

    writeInput({sysex, event(0, NOTE_ON, 0, 60, 100), event(10, NOTE_ON, 0, 30, 100), event(20, NOTE_OFF, 0, 30, 0),
                event(480, NOTE_OFF, 0, 60, 30)});
    ASSERT_EQ(renderWithLayers("<Layers><Layer minNote='C4'/></Layers>"), 0) << m_complained;
    EXPECT_EQ(m_printed, path("in.mid") +
                             ": format 1, 2 tracks, 0.6 seconds\n"
                             "  read 4 events\n"
                             "  played 2 events\n"
                             "  dropped 2 events\n"
                             "    because no layer takes it: 1 event\n"
                             "    because the desk doesn't carry it: 1 system message\n"
                             "  wrote " +
                             path("out.mid") + "\n");
}

TEST_F(RenderTest, TheTemposOfTheFileAreKept) {
    writeInput({event(0, NOTE_ON, 0, 60, 100), event(480, NOTE_OFF, 0, 60, 30)});
    ASSERT_EQ(render(), 0) << m_complained;
    EXPECT_EQ(readMidiFile(*Platform::Files::read(path("out.mid"))).file.tempi,
              (std::vector<MidiFileTempo>{{0, 600000}}));
    ASSERT_EQ(render({"--tempo", "120"}), 0) << m_complained;
    EXPECT_EQ(readMidiFile(*Platform::Files::read(path("out.mid"))).file.tempi,
              (std::vector<MidiFileTempo>{{0, 500000}}));
}

TEST_F(RenderTest, ChannelsThatDoNotEnterBypassTheLayers) {
    writeInput({event(0, NOTE_ON, 0, 60, 100), event(0, NOTE_ON, 4, 40, 100), event(480, NOTE_OFF, 0, 60, 0),
                event(480, NOTE_OFF, 4, 40, 0)});
    ASSERT_EQ(renderWithLayers("<Layers><Layer channel='9' transpose='+12'/></Layers>", {"--through", "1-3,6"}), 0);
    EXPECT_EQ(output(),
              (std::vector<std::string>{"0 on ch9 72 100", "0 on ch4 40 100", "480 off ch9 72 0", "480 off ch4 40 0"}));
}

TEST_F(RenderTest, AnArpeggioPlaysOnUntilItsLastNoteHasEnded) {
    writeInput({event(0, NOTE_ON, 0, 60, 100), event(250, NOTE_OFF, 0, 60, 0)});
    ASSERT_EQ(
        renderWithLayers("<Layers><Layer><Arpeggio><UpArpeggio beat='240' length='120'/></Arpeggio></Layer></Layers>"),
        0);
    EXPECT_EQ(output(), (std::vector<std::string>{"0 on ch0 60 100", "120 off ch0 60 100", "240 on ch0 60 100",
                                                  "360 off ch0 60 100"}));
}

TEST_F(RenderTest, ANoteThatTheFileNeverEndsIsEnded) {
    writeInput({event(0, NOTE_ON, 0, 60, 100), event(0, NOTE_ON, 0, 60, 90), event(480, CONTROLLER, 0, 1, 2)});
    ASSERT_EQ(renderWithLayers("<Layers><Layer useNoteStack='false'/></Layers>"), 0);
    EXPECT_EQ(output(), (std::vector<std::string>{"0 on ch0 60 100", "0 on ch0 60 90", "480 other ch0 1 2",
                                                  "480 off ch0 60 90", "480 off ch0 60 90"}));
    EXPECT_NE(m_printed.find("  ended 2 notes that the file leaves sounding\n"), std::string::npos) << m_printed;
}

TEST_F(RenderTest, AnArpeggioWithoutEndIsCutOff) {
    writeInput({event(0, NOTE_ON, 0, 60, 100), event(480, NOTE_OFF, 0, 60, 0)});
    ASSERT_EQ(renderWithLayers("<Layers><Layer toggle='type1'><Arpeggio><UpArpeggio/></Arpeggio></Layer></Layers>"), 0);
    EXPECT_NE(m_printed.find("  ended an arpeggio that would never have stopped\n"), std::string::npos);
    const auto lines = output();
    ASSERT_FALSE(lines.empty());
    EXPECT_NE(lines.back().find(" off "), std::string::npos);
}

TEST_F(RenderTest, ANoteOnWithoutVelocityEndsANote) {
    writeInput({event(0, NOTE_ON, 0, 60, 100), event(480, NOTE_ON, 0, 60, 0)});
    ASSERT_EQ(render(), 0);
    EXPECT_EQ(output(), (std::vector<std::string>{"0 on ch0 60 100", "480 off ch0 60 0"}));
}

TEST_F(RenderTest, ZonesMoveTheChannelsOfTheirNumbers) {
    ASSERT_TRUE(Platform::Files::replace(path("zones.xml"),
                                         "<Zones><Zone id='0' transpose='12'/><Zone id='1' transpose='-12'/></Zones>"));
    writeInput({event(0, NOTE_ON, 0, 60, 100), event(0, NOTE_ON, 1, 60, 100), event(480, NOTE_OFF, 0, 60, 0),
                event(480, NOTE_OFF, 1, 60, 0)});
    ASSERT_EQ(render({"--zones", path("zones.xml")}), 0) << m_complained;
    EXPECT_EQ(output(),
              (std::vector<std::string>{"0 on ch0 72 100", "0 on ch0 48 100", "480 off ch0 72 0", "480 off ch0 48 0"}));
    ASSERT_EQ(render({"--zones", path("zones.xml"), "--zone", "2"}), 0) << m_complained;
    EXPECT_EQ(output().front(), "0 on ch0 48 100");
}

TEST_F(RenderTest, SlicesOfTimeRoundAsAHostDoes) {
    writeInput({event(0, NOTE_ON, 0, 60, 100), event(101, NOTE_OFF, 0, 60, 0)});
    ASSERT_EQ(render({"--slice", "10", "--tempo", "125"}), 0) << m_complained;
    EXPECT_EQ(output(), (std::vector<std::string>{"0 on ch0 60 100", "100 off ch0 60 0"}));
}

TEST_F(RenderTest, EachOutputHasATrack) {
    writeInput({event(0, NOTE_ON, 0, 60, 100), event(480, NOTE_OFF, 0, 60, 0)});
    ASSERT_EQ(renderWithLayers("<Layers><Layer output='4'/><Layer/></Layers>"), 0);
    const MidiFile file = readMidiFile(*Platform::Files::read(path("out.mid"))).file;
    ASSERT_EQ(file.tracks.size(), 3u);
    EXPECT_EQ(file.tracks[1].name, "Output 5");
    EXPECT_EQ(file.tracks[2].name, "Output 1");
}

TEST_F(RenderTest, SilenceOfHoursTakesNoTime) {
    writeInput({event(0, NOTE_ON, 0, 60, 100), event(1900000000, NOTE_OFF, 0, 60, 0)});
    ASSERT_EQ(render(), 0) << m_complained;
    EXPECT_EQ(output().back(), "1900000000 off ch0 60 0");
}

TEST_F(RenderTest, AFileLongerThanTheDeskCountsIsRefused) {
    writeInput({event(0, NOTE_ON, 0, 60, 100), event(std::int64_t{1} << 32, NOTE_OFF, 0, 60, 0)});
    expectRefusal(render(), "in.mid", "lasts longer than the desk can count");
}

TEST_F(RenderTest, BadInputGetsOneLineAndNoOutput) {
    expectRefusal(render(), "in.mid", "can't be read");
    ASSERT_TRUE(Platform::Files::replace(path("in.mid"), ""));
    EXPECT_EQ(render(), 2);
    EXPECT_EQ(m_complained.find(path("in.mid") + ": byte 0"), 0u) << m_complained;

    writeInput({event(0, NOTE_ON, 0, 60, 100)});
    const std::string whole = *Platform::Files::read(path("in.mid"));

    for (std::size_t size = 0; size < whole.size(); ++size) {
        ASSERT_TRUE(Platform::Files::replace(path("in.mid"), whole.substr(0, size)));
        ASSERT_EQ(render(), 2) << size;
        EXPECT_EQ(m_complained.find(path("in.mid") + ": byte "), 0u) << m_complained;
        EXPECT_EQ(m_complained.find('\n'), m_complained.size() - 1);
        EXPECT_FALSE(Platform::Files::size(path("out.mid")));
    }
}

TEST_F(RenderTest, BadLayersAndZonesGetOneLine) {
    writeInput({event(0, NOTE_ON, 0, 60, 100)});
    expectRefusal(renderWithLayers("<Layers><Layer></Layers>"), "layers.pst", "is not well-formed XML");
    expectRefusal(renderWithLayers("<Zones/>"), "layers.pst", "is not an element Layers");
    expectRefusal(render({"--layers", path("none.pst")}), "none.pst", "can't be read");
    expectRefusal(render({"--zones", path("layers.pst"), "--layers", path("none.pst")}), "none.pst", "can't be read");
    ASSERT_TRUE(Platform::Files::replace(path("layers.pst"), "<Layers/>"));
    expectRefusal(render({"--zones", path("layers.pst")}), "layers.pst", "is not an element Zones");
}

// Songs that come with a game; every note must have ended when the last one has.
TEST_F(RenderTest, SongsPlayThroughTheExampleBandAndNothingHangs) {
    const std::string folder = "/usr/share/games/openttd/baseset/openmsx";
    const auto songs = Platform::Files::list(folder, ".mid");
    ASSERT_GE(songs.size(), 10u);

    for (std::size_t i = 0; i < songs.size(); i += 5) {
        const auto bytes = Platform::Files::read(Platform::Files::join(folder, songs[i]));
        ASSERT_TRUE(bytes && Platform::Files::replace(path("in.mid"), *bytes));
        ASSERT_EQ(render({"--layers", TestSupport::projectFile("data/examples/Arpeggio Band.pst")}), 0) << songs[i];
        const MidiFileResult result = readMidiFile(*Platform::Files::read(path("out.mid")));
        ASSERT_FALSE(result.error) << songs[i];
        EXPECT_GT(result.file.counts.channelEventsOf(NOTE_ON), 100u) << songs[i];
        std::set<std::pair<int, int>> sounding;
        for (const MidiFileMergedEvent& merged : mergedEvents(result.file)) {
            if (merged.event->status == NOTE_ON)
                sounding.insert({merged.event->channel, merged.event->d1});
            else if (merged.event->status == NOTE_OFF)
                sounding.erase({merged.event->channel, merged.event->d1});
        }
        EXPECT_TRUE(sounding.empty()) << songs[i] << ": " << sounding.size();
    }
}

TEST_F(RenderTest, AHundredMegabytesOfLayersAreRefusedWithALine) {
    writeInput({event(0, NOTE_ON, 0, 60, 100)});
    std::string xml = "<Layers>";
    while (xml.size() < 100'000'000)
        xml += "<Layer channel='1' transpose='+5' key='C' velocity='+3' compress='1_2'></Layer>";
    expectRefusal(renderWithLayers(xml + "</Layers>"), "layers.pst", "is larger than 64 MiB");
}

TEST_F(RenderTest, HugeLayersAreTaken) {
    writeInput({event(0, NOTE_ON, 0, 60, 100), event(480, NOTE_OFF, 0, 60, 0)});
    std::string sequence = "0";
    for (int i = 1; i < 1'000'000; ++i)
        sequence += ",0";
    EXPECT_EQ(renderWithLayers("<Layers><Layer><Arpeggio><UpArpeggio/></Arpeggio><SequenceSetting><Sequence>" +
                               sequence + "</Sequence></SequenceSetting></Layer></Layers>"),
              0);
    EXPECT_EQ(output().front(), "0 on ch0 60 100");
    EXPECT_EQ(renderWithLayers("<Layers><Layer minNote='" + std::string(1 << 20, '0') + "'/></Layers>"), 0);
    EXPECT_EQ(output().front(), "0 on ch0 60 100");
}

TEST_F(RenderTest, AnOutputThatCanNotBeWrittenGetsOneLine) {
    writeInput({event(0, NOTE_ON, 0, 60, 100)});
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const std::string target = path("no such folder/out.mid");
    EXPECT_EQ(runRender({path("in.mid"), target}), 2);
    testing::internal::GetCapturedStdout();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), target + ": can't be written\n");
}

TEST_F(RenderTest, OptionsThatMakeNoSenseAreRefused) {
    writeInput({event(0, NOTE_ON, 0, 60, 100)});
    const std::vector<std::vector<std::string>> bad = {
        {"--tempo", "19"},   {"--tempo", "251"},  {"--tempo", "x"},   {"--slice", "0"},    {"--slice", "-1"},
        {"--slice", "1x"},   {"--slice", "1001"}, {"--through", "0"}, {"--through", "17"}, {"--through", "3-1"},
        {"--through", "1,"}, {"--zone", "0"},     {"--zone", "129"},  {"--zone", "x"},     {"--nothing", "1"},
        {"--tempo"},         {"third.mid"},
    };

    for (const auto& options : bad) {
        EXPECT_EQ(render(options), 2) << options.front() << " " << options.back();
        EXPECT_EQ(m_complained.find("mirel: "), 0u) << m_complained;
        EXPECT_FALSE(Platform::Files::size(path("out.mid")));
    }

    for (const char* good : {"20", "250"})
        EXPECT_EQ(render({"--tempo", good}), 0) << m_complained;
}

}
}
