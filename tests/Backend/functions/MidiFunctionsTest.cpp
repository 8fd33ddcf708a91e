// What the functions for MIDI events send, as it leaves the engine.
#include "tests/support/ScriptedDesk.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

using TestSupport::ScriptedDesk;

constexpr const char* LAYERS = R"(layers
<Layers><Layer channel="6"/><Layer zone="1" channel="5" output="1"/><Layer zone="2" channel="4"/></Layers>
.
)";

// Where the layers send an event without a zone and one of zone 1.
const std::vector<std::string> ALL_LAYERS = {"ch=6 out=0", "ch=5 out=1", "ch=4 out=0"};
const std::vector<std::string> LAYERS_OF_ZONE_1 = {"ch=6 out=0", "ch=5 out=1"};

// Updates show an event as it reached the engine, once for each time that it is played. Notes have none.
std::string sentTo(const std::vector<std::string>& targets, const std::string& bytes, const std::string& routing) {
    std::string lines;
    for (const std::string& target : targets)
        lines += (routing.empty() ? "" : "update " + bytes + " " + routing + " in=-1\n") + "play " + bytes + " " +
                 target + "\n";
    return lines;
}

class MidiFunctionsTest : public testing::Test {
protected:
    MidiFunctionsTest() { m_desk.run(LAYERS); }

    ScriptedDesk m_desk{{false, true, false}};
};

struct ChannelRow {
    const char* tag;
    const char* data;     // Attributes.
    const char* sent;     // Status, d1, d2.
    bool isNote = false;  // Notes make no updates.
};

constexpr ChannelRow CHANNEL_ROWS[] = {
    {"MidiNoteOn", R"(note="C4" velocity="70")", "0x90 60 70", true},
    {"MidiNoteOff", R"(note="C#4" velocity="71")", "0x80 61 71", true},
    {"MidiKeyPressure", R"(key="62" pressure="72")", "0x80 62 72", true},
    {"MidiControllerChange", R"(controller="3" value="73")", "0xb0 3 73"},
    {"ProgramChange", R"(program="74")", "0xc0 74 0"},
    {"MidiChannelPressure", R"(pressure="75")", "0xd0 75 0"},
    {"MidiPitchBend", R"(value="8192")", "0xe0 0 64"},
};

std::string element(const std::string& tag, const std::string& routing, const std::string& data) {
    return "<" + tag + " " + routing + " " + data + "/>";
}

TEST_F(MidiFunctionsTest, ChannelEventsGoWhereTheySay) {
    for (const ChannelRow& row : CHANNEL_ROWS)
        EXPECT_EQ(m_desk.execute(element(row.tag, R"(zone="1" output="1" channel="9")", row.data)),
                  sentTo({"ch=9 out=1"}, row.sent, row.isNote ? "" : "ch=9 out=1 zone=1"));
}

TEST_F(MidiFunctionsTest, ChannelEventsWithoutRoutingGoThroughTheLayers) {
    for (const ChannelRow& row : CHANNEL_ROWS) {
        EXPECT_EQ(m_desk.execute(element(row.tag, "", row.data)),
                  sentTo(ALL_LAYERS, row.sent, row.isNote ? "" : "ch=-1 out=-1 zone=-1"));
        EXPECT_EQ(m_desk.execute(element(row.tag, R"(zone="1")", row.data)),
                  sentTo(LAYERS_OF_ZONE_1, row.sent, row.isNote ? "" : "ch=-1 out=-1 zone=1"));
    }
}

TEST_F(MidiFunctionsTest, SongPositionKeepsItsZone) {
    EXPECT_EQ(m_desk.execute(R"(<MidiSongPosition value="1000" zone="1" channel="7"/>)"),
              sentTo(LAYERS_OF_ZONE_1, "0xf2 104 7", "ch=-1 out=-1 zone=1"));
    EXPECT_EQ(m_desk.execute(R"(<MidiSongPosition value="1000"/>)"),
              sentTo(ALL_LAYERS, "0xf2 104 7", "ch=-1 out=-1 zone=-1"));
}

TEST_F(MidiFunctionsTest, ChannelsAreKeptToSixteen) {
    for (const auto& [channel, sent] :
         {std::pair{"0", "0"}, {"1", "1"}, {"14", "14"}, {"15", "15"}, {"16", "15"}, {"20", "15"}, {"127", "15"}})
        for (const ChannelRow& row : CHANNEL_ROWS)
            EXPECT_NE(m_desk.execute(element(row.tag, R"(channel=")" + std::string(channel) + "\"", row.data))
                          .find("play " + std::string(row.sent) + " ch=" + sent + " out=0\n"),
                      std::string::npos)
                << row.tag << channel;
}

TEST_F(MidiFunctionsTest, NegativeChannelsAreTheDefault) {
    for (const char* channel : {"-1", "-56", "200", "255", "x", ""})
        EXPECT_EQ(m_desk.execute(element("MidiNoteOn", R"(note="C4" channel=")" + std::string(channel) + "\"", "")),
                  sentTo(ALL_LAYERS, "0x90 60 100", ""))
            << channel;
}

TEST_F(MidiFunctionsTest, AControllerWithoutAttributesIsController0AtValue100) {
    EXPECT_EQ(m_desk.execute("<MidiControllerChange/>"), sentTo(ALL_LAYERS, "0xb0 0 100", "ch=-1 out=-1 zone=-1"));
}

TEST_F(MidiFunctionsTest, ANoteWithoutANumberIsSentAsNone) {
    EXPECT_EQ(m_desk.execute(R"(<MidiNoteOn channel="2"/>)"), "play 0x90 255 100 ch=2 out=0\n");
}

TEST_F(MidiFunctionsTest, WideValuesGoInTwoBytesOfWhichTheSecondIsNotMasked) {
    for (const auto& [value, bytes] : {std::pair{"0", "0 0"},
                                       {"127", "127 0"},
                                       {"128", "0 1"},
                                       {"8192", "0 64"},
                                       {"16383", "127 127"},
                                       {"16384", "0 128"},
                                       {"32767", "127 255"},
                                       {"-1", "127 255"},
                                       {"-8192", "0 192"}}) {
        EXPECT_EQ(
            m_desk.execute(element("MidiPitchBend", R"(output="1")", "value=\"" + std::string(value) + "\"")),
            "update 0xe0 " + std::string(bytes) + " ch=-1 out=1 zone=-1 in=-1\nplay 0xe0 " + bytes + " ch=0 out=1\n");
        EXPECT_EQ(
            m_desk.execute(
                element("MidiSongPosition", R"(zone="3" output="1")", "value=\"" + std::string(value) + "\"")),
            "update 0xf2 " + std::string(bytes) + " ch=-1 out=1 zone=3 in=-1\nplay 0xf2 " + bytes + " ch=0 out=1\n");
    }
}

TEST_F(MidiFunctionsTest, SystemEventsHaveNoZoneAndNoChannel) {
    struct Row {
        const char* tag;
        const char* data;
        const char* sent;
    };

    const Row rows[] = {
        {"MidiSongSelect", R"(songNumber="9")", "0xf3 9 0"},
        {"MidiSongSelect", R"(songNumber="200")", "0xf3 200 0"},
        {"MidiSongSelect", "", "0xf3 0 0"},
        {"MidiBusSelect", R"(busNumber="8")", "0xf5 8 0"},
        {"MidiBusSelect", "", "0xf5 0 0"},
        {"MidiTuneRequest", "", "0xf6 0 0"},
        {"MidiEndOfSysEx", "", "0xf7 0 0"},
        {"MidiTimingTick", "", "0xf8 0 0"},
        {"MidiStartSong", "", "0xfa 0 0"},
        {"MidiContinueSong", "", "0xfb 0 0"},
        {"MidiStopSong", "", "0xfc 0 0"},
        {"MidiActiveSensing", "", "0xfe 0 0"},
        {"MidiSystemReset", "", "0xff 0 0"},
    };

    for (const Row& row : rows) {
        // They have no channel attribute.
        EXPECT_EQ(m_desk.execute(element(row.tag, R"(zone="1" output="1" channel="7")", row.data)),
                  sentTo({"ch=0 out=1"}, row.sent, "ch=-1 out=1 zone=-1"));
        EXPECT_EQ(m_desk.execute(element(row.tag, R"(zone="1")", row.data)),
                  sentTo(ALL_LAYERS, row.sent, "ch=-1 out=-1 zone=-1"));
    }
}

TEST_F(MidiFunctionsTest, MissingOutputsGetNothing) {
    EXPECT_EQ(m_desk.execute(R"(<MidiNoteOn note="C4" channel="1" output="5"/>)"), "");
    EXPECT_EQ(m_desk.execute(R"(<MidiStartSong output="5"/>)"), "");
}

TEST_F(MidiFunctionsTest, TheZoneOfANoteTransposesIt) {
    m_desk.run("zone 1 12");
    EXPECT_EQ(m_desk.execute(R"(<MidiNoteOn zone="1" channel="3" note="C4" velocity="9"/>)"),
              "play 0x90 72 9 ch=3 out=0\n");
    EXPECT_EQ(m_desk.execute(R"(<MidiKeyPressure zone="1" channel="3" key="60" pressure="8"/>)"),
              "play 0x80 72 8 ch=3 out=0\n");
}

}
