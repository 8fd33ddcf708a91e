#include "Backend/midi/MidiMessage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>

namespace Backend::MidiEngine {
namespace {

struct EventRow {
    std::uint32_t status;
    const char* name;
    int size;
    bool hasParameters;
};

constexpr EventRow EVENTS[] = {
    {128, "Note Off", 2, true},
    {144, "Note On", 2, true},
    {160, "Key Pressure", 2, true},
    {176, "Controller Change", 2, true},
    {192, "Program Change", 1, true},
    {208, "Channel Pressure", 1, true},
    {224, "Pitch Bend", 2, true},
    {240, "System Exclusive", 2, true},
    {242, "Song Position", 2, true},
    {243, "Song Select", 1, true},
    {245, "Unofficial Bus Select", 1, true},
    {246, "Tune Request", 0, false},
    {247, "End Of Sysex", 0, false},
    {248, "Timing Tick", 0, false},
    {250, "Start Song", 0, false},
    {251, "Continue Song", 0, false},
    {252, "Stop Song", 0, false},
    {254, "Active Sensing", 0, false},
    {255, "System Reset", 0, false},
};

using Type = MidiMessage::MessageType;

MidiMessage message(std::uint32_t status, int d1 = 0, int d2 = 0, int channel = 0) {
    return {static_cast<Type>(status), static_cast<char>(d1), static_cast<char>(d2), static_cast<char>(channel)};
}

const EventRow* findRow(std::uint32_t status) {
    for (const EventRow& row : EVENTS)
        if (row.status == status)
            return &row;
    return nullptr;
}

TEST(MidiMessageTest, EachEventHasItsNameAndSize) {
    for (const EventRow& row : EVENTS) {
        const MidiMessage event(static_cast<Type>(row.status));
        EXPECT_TRUE(event.isValid()) << row.name;
        EXPECT_EQ(event.getEventName(), row.name);
        EXPECT_EQ(MidiMessage::getEventNameStatic(static_cast<Type>(row.status)), row.name);
        EXPECT_EQ(event.getMessageSize(), row.size) << row.name;
        EXPECT_EQ(event.hasParameters(), row.hasParameters) << row.name;
    }
}

TEST(MidiMessageTest, EveryOtherStatusIsUnknown) {
    for (std::uint32_t status = 0; status < 300; ++status) {
        if (findRow(status))
            continue;
        MidiMessage event;
        event.setMessageType(static_cast<Type>(status));
        EXPECT_FALSE(event.isValid()) << status;
        EXPECT_EQ(event.getEventName(), "Unknown") << status;
        EXPECT_EQ(event.getMessageSize(), 0) << status;
        EXPECT_FALSE(event.hasParameters()) << status;
    }
}

TEST(MidiMessageTest, DefaultIsEmpty) {
    const MidiMessage event;
    EXPECT_EQ(event.getStatus(), 0u);
    EXPECT_EQ(event.getD1(), 0);
    EXPECT_EQ(event.getD2(), 0);
    EXPECT_EQ(event.getChannel(), 0);
    EXPECT_FALSE(event.isValid());
}

TEST(MidiMessageTest, ConstructorsTakeTheChannelOffTheStatus) {
    EXPECT_EQ(message(0x93).getStatus(), 0x90u);
    EXPECT_EQ(MidiMessage(static_cast<Type>(0x93), 5).getStatus(), 0x90u);
    EXPECT_EQ(MidiMessage(static_cast<Type>(0x93)).getStatus(), 0x90u);
    EXPECT_EQ(MidiMessage(std::uint64_t{0x93}).getStatus(), 0x90u);
    EXPECT_EQ(message(0xF3).getStatus(), 0xF3u);
    EXPECT_EQ(MidiMessage(std::uint64_t{0xF3}).getStatus(), 0xF3u);
    EXPECT_EQ(MidiMessage::fixStatus(0xEF), 0xE0u);
    EXPECT_EQ(MidiMessage::fixStatus(0xF0), 0xF0u);
}

TEST(MidiMessageTest, ShorterConstructorsLeaveTheRestZero) {
    const MidiMessage event(MidiMessage::ProgramChange, 7);
    EXPECT_EQ(event.getD1(), 7);
    EXPECT_EQ(event.getD2(), 0);
    EXPECT_EQ(event.getChannel(), 0);
}

TEST(MidiMessageTest, ConstructorKeepsTheChannelInRangeAndTheSetterDoesNot) {
    EXPECT_EQ(message(0x90, 1, 2, 99).getChannel(), 15);
    EXPECT_EQ(message(0x90, 1, 2, 15).getChannel(), 15);
    EXPECT_EQ(message(0x90, 1, 2, -4).getChannel(), 0);
    MidiMessage event = message(0x90);
    event.setChannel(99);
    EXPECT_EQ(event.getChannel(), 99);
}

TEST(MidiMessageTest, NoteGivesANoteOn) {
    const MidiMessage event(Note(std::uint8_t{61}));
    EXPECT_TRUE(event.isNoteOn());
    EXPECT_EQ(event.getD1(), 61);
    EXPECT_EQ(event.getD2(), 0);
    EXPECT_FALSE(MidiMessage(Note()).isValid());

    MidiMessage assigned = message(0xB0, 1, 64, 7);
    assigned = Note(std::uint8_t{255});
    EXPECT_TRUE(assigned.isNoteOn());
    EXPECT_EQ(assigned.getD1(), -1);
    EXPECT_EQ(assigned.getD2(), 0);
    EXPECT_EQ(assigned.getChannel(), 7);
}

TEST(MidiMessageTest, StatusAndChannelMerge) {
    EXPECT_EQ(message(0x90, 0, 0, 5).getStatusWithChannel(), 0x95);
}

TEST(MidiMessageTest, NoteOnAndOffChangeOnlyTheStatus) {
    MidiMessage event = message(0x90, 60, 100, 3);
    event.setToNoteOff();
    EXPECT_EQ(event, message(0x80, 60, 100, 3));
    event.setToNoteOn();
    EXPECT_EQ(event, message(0x90, 60, 100, 3));
}

TEST(MidiMessageTest, TestsRecogniseTheKind) {
    EXPECT_TRUE(message(0x80).isNote());
    EXPECT_TRUE(message(0x90).isNote());
    EXPECT_FALSE(message(0xA0).isNote());
    EXPECT_TRUE(message(0x80).isNoteOff());
    EXPECT_TRUE(message(0xB0).isControllerChange());
    EXPECT_TRUE(message(0xC0).isProgramChange());
    EXPECT_TRUE(message(0xD0).isChannelPressure());
    EXPECT_TRUE(message(0xE0).isPitchBend());
    EXPECT_TRUE(message(0xF2).isSongPosition());
    EXPECT_TRUE(message(0xF3).isSongSelect());
    EXPECT_TRUE(message(0xF5).isUnofficialBusSelect());
    EXPECT_TRUE(message(0xF8).isTimingTick());
    EXPECT_TRUE(message(0xFF).isSystemReset());
    EXPECT_TRUE(message(0xB0, 0).isBankMsb());
    EXPECT_TRUE(message(0xB0, 32).isBankLsb());
    EXPECT_TRUE(message(0xB0, 120).isAllSoundOff());
    EXPECT_FALSE(message(0x90, 120).isAllSoundOff());
    EXPECT_FALSE(message(0xB0, 1).isBankMsb());
}

TEST(MidiMessageTest, EachTestIsTrueForItsStatusOnly) {
    struct Row {
        bool (MidiMessage::*test)() const;
        std::vector<std::uint32_t> statuses;
    };

    const Row rows[] = {
        {&MidiMessage::isNote, {0x80, 0x90}},    {&MidiMessage::isNoteOff, {0x80}},
        {&MidiMessage::isNoteOn, {0x90}},        {&MidiMessage::isControllerChange, {0xB0}},
        {&MidiMessage::isProgramChange, {0xC0}}, {&MidiMessage::isChannelPressure, {0xD0}},
        {&MidiMessage::isPitchBend, {0xE0}},     {&MidiMessage::isSongPosition, {0xF2}},
        {&MidiMessage::isSongSelect, {0xF3}},    {&MidiMessage::isUnofficialBusSelect, {0xF5}},
        {&MidiMessage::isTimingTick, {0xF8}},    {&MidiMessage::isSystemReset, {0xFF}},
    };

    for (std::size_t i = 0; i < std::size(rows); ++i)
        for (const EventRow& event : EVENTS)
            EXPECT_EQ((message(event.status).*rows[i].test)(),
                      std::count(rows[i].statuses.begin(), rows[i].statuses.end(), event.status) == 1)
                << i << ' ' << event.name;
}

TEST(MidiMessageTest, ControllerTestsCheckStatusAndNumber) {
    struct Row {
        bool (MidiMessage::*test)() const;
        int number;
    };
    for (const Row& row :
         {Row{&MidiMessage::isBankMsb, 0}, Row{&MidiMessage::isBankLsb, 32}, Row{&MidiMessage::isAllSoundOff, 120}}) {
        for (int number = 0; number < 256; ++number)
            EXPECT_EQ((message(0xB0, number).*row.test)(), number == row.number) << number;
        for (const EventRow& event : EVENTS)
            EXPECT_EQ((message(event.status, row.number).*row.test)(), event.status == 0xB0) << event.name;
    }
}

TEST(MidiMessageTest, WordHoldsChannelD2D1Status) {
    MidiMessage event = message(0x90, 60, 100, 3);
    EXPECT_EQ(event.getWparam(), 0x03643C90u);
    event.setChannel(-1);
    event.setD1(-2);
    EXPECT_EQ(event.getWparam(), 0xFF64FE90u);
    EXPECT_EQ(MidiMessage(event.getWparam()), event);
}

TEST(MidiMessageTest, OutputWordMergesTheChannel) {
    EXPECT_EQ(message(0x90, 60, 100, 3).getMidiOutShortMsg(), 0x00643C93u);
    MidiMessage far = message(0x90, 60, 100);
    far.setChannel(99);
    EXPECT_EQ(far.getMidiOutShortMsg(), 0x00643C90u);
    far.setChannel(-1);
    EXPECT_EQ(far.getMidiOutShortMsg(), 0x00643C90u);
    EXPECT_EQ(message(0xF2, 1, 2, 3).getMidiOutShortMsg(), 0x000201F2u);
    EXPECT_EQ(message(0xF3, 1, 0, 3).getMidiOutShortMsg() & 0xff, 0xF3u);
    EXPECT_EQ(message(0xF6, 0, 0, 1).getMidiOutShortMsg() & 0xff, 0xF7u);
}

TEST(MidiMessageTest, WriteBytesWritesTheEventsSize) {
    const std::string path = testing::TempDir() + "mirel_write_bytes";
    {
        std::ofstream stream(path, std::ios::binary);
        EXPECT_EQ(message(0x90, 60, 100, 2).writeBytes(stream), 3);
        EXPECT_EQ(message(0xC0, 7, 99, 1).writeBytes(stream), 2);
        EXPECT_EQ(message(0xF8).writeBytes(stream), 1);
    }
    std::ifstream stream(path, std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(stream)), std::istreambuf_iterator<char>());
    EXPECT_EQ(bytes, "\x92\x3C\x64\xC1\x07\xF8");
    stream.close();
    std::remove(path.c_str());
}

TEST(MidiMessageTest, TextKeepsTheDataOfNotesAndControllersOnly) {
    EXPECT_EQ(message(0xB0, 1, 64).toXmlString(), "Controller Change,1");
    EXPECT_EQ(message(0x90, 60).toXmlString(), "Note On,60");
    EXPECT_EQ(message(0x80, 60).toXmlString(), "Note Off,60");
    EXPECT_EQ(message(0xC0, 5).toXmlString(), "Program Change");
    EXPECT_EQ(message(0xE0, 5, 6).toXmlString(), "Pitch Bend");
}

TEST(MidiMessageTest, TextReadsBack) {
    for (const EventRow& row : EVENTS)
        EXPECT_EQ(MidiMessage(std::string(row.name)).getStatus(), row.status) << row.name;
    for (const char* text : {"Note On,60", "Note On, 60", "Note On,\t60 "}) {
        EXPECT_EQ(MidiMessage(std::string(text)).getStatus(), 144u) << text;
        EXPECT_EQ(MidiMessage(std::string(text)).getD1(), 60) << text;
    }
    const MidiMessage start(std::string("Start Song"));
    EXPECT_EQ(start.getStatus(), 250u);
    EXPECT_EQ(start.getD1(), 0);
}

TEST(MidiMessageTest, TextThatMakesNoSenseGivesDefaults) {
    // An unknown name makes no event, whatever its number says.
    const MidiMessage unknown(std::string("note on,60"));
    EXPECT_EQ(unknown.getStatus(), 0u);
    EXPECT_EQ(unknown.getD1(), 60);
    EXPECT_FALSE(unknown.isValid());
    EXPECT_EQ(MidiMessage(std::string("")).getStatus(), 0u);
    EXPECT_EQ(MidiMessage(std::string("Note On ,60")).getStatus(), 0u);
    EXPECT_EQ(MidiMessage(std::string("Note On,x")).getD1(), 0);
    EXPECT_EQ(MidiMessage(std::string("Note On,")).getD1(), 0);
}

TEST(MidiMessageTest, DisplayTextShowsNoteAndController) {
    EXPECT_EQ(message(0x90, 60).getEventNameWithCcAndNoteDetail(), "Note 60 (C4)");
    EXPECT_EQ(message(0x80, 0).getEventNameWithCcAndNoteDetail(), "Note 0 (C-1)");
    EXPECT_EQ(message(0xB0, 1).getEventNameWithCcAndNoteDetail(), "Control Change 1: Modulation wheel");
    EXPECT_EQ(message(0xE0).getEventNameWithCcAndNoteDetail(), "Pitch Bend");
}

TEST(MidiMessageTest, ControllersHaveTheirNames) {
    struct Row {
        int first;
        std::vector<const char*> names;
    };

    const Row rows[] = {
        {0,
         {"Bank Select (MSB)",
          "Modulation wheel",
          "Breath control",
          "Undefined",
          "Foot controller",
          "Portamento time",
          "Data Entry",
          "Channel Volume",
          "Balance",
          "Undefined",
          "Pan",
          "Expression Controller",
          "Effect control 1",
          "Effect control 2",
          "Undefined",
          "Undefined",
          "General Purpose Ctl #1",
          "General Purpose Ctl #2",
          "General Purpose Ctl #3",
          "General Purpose Ctl #4"}},
        {32,
         {"Bank Select (LSB)",
          "Modulation wheel",
          "Breath control",
          "Undefined",
          "Foot controller",
          "Portamento time",
          "Data Entry",
          "Channel Volume",
          "Balance",
          "Undefined",
          "Pan",
          "Expression Controller",
          "Effect control 1",
          "Effect control 2",
          "Undefined",
          "Undefined",
          "General Purpose Ctl #1",
          "General Purpose Ctl #2",
          "General Purpose Ctl #3",
          "General Purpose Ctl #4"}},
        {64,
         {"Damper pedal on/off",
          "Portamento on/off",
          "Sustenuto on/off",
          "Soft pedal on/off",
          "Legato Footswitch",
          "Hold 2",
          "Sound Ctl 1 (Sound Variation)",
          "Sound Ctl 2 (Timbre)",
          "Sound Ctl 3 (Release Time)",
          "Sound Ctl 4 (Attack Time)",
          "Sound Ctl 5 (Brightness)",
          "Sound Ctl 6",
          "Sound Ctl 7",
          "Sound Ctl 8",
          "Sound Ctl 9",
          "Sound Ctl 10",
          "General Purpose Ctl #5",
          "General Purpose Ctl #6",
          "General Purpose Ctl #7",
          "General Purpose Ctl #8",
          "Portamento Control"}},
        {91,
         {"Effects 1 Depth", "Effects 2 Depth", "Effects 3 Depth", "Effects 4 Depth", "Effects 5 Depth",
          "Data entry +1", "Data entry -1", "NRPN LSB", "NRPN MSB", "RPN LSB", "RPN MSB"}},
        {120,
         {"All Sound Off", "Reset All Controllers", "Local control on/off", "All notes off", "Omni mode off",
          "Omni mode on", "Poly mode on/off", "Poly mode on"}},
    };

    std::vector<std::string> expected(256, "Undefined");
    for (const Row& row : rows)
        for (std::size_t i = 0; i < row.names.size(); ++i)
            expected[static_cast<std::size_t>(row.first) + i] = row.names[i];
    for (int number = 0; number < 256; ++number)
        EXPECT_EQ(MidiMessage::getControllerName(static_cast<char>(number)), expected[static_cast<std::size_t>(number)])
            << number;
}

TEST(MidiMessageTest, EqualityComparesAllFour) {
    const MidiMessage event = message(0x90, 60, 100, 3);
    EXPECT_TRUE(event == message(0x90, 60, 100, 3));
    EXPECT_FALSE(event != message(0x90, 60, 100, 3));
    for (const MidiMessage& other :
         {message(0x80, 60, 100, 3), message(0x90, 61, 100, 3), message(0x90, 60, 101, 3), message(0x90, 60, 100, 4)}) {
        EXPECT_FALSE(event == other);
        EXPECT_TRUE(event != other);
    }
}

TEST(MidiMessageTest, OrderIsByStatusAndSignedFirstByte) {
    EXPECT_TRUE(message(0x80, 90) < message(0x90, 10));
    EXPECT_TRUE(message(0x90, 10) < message(0x90, 11));
    EXPECT_TRUE(message(0x90, 200) < message(0x90, 0));
    EXPECT_FALSE(message(0x90, 10, 1) < message(0x90, 10, 2));
    EXPECT_TRUE(message(0x90, 11) >= message(0x90, 10));
    EXPECT_FALSE(message(0x80, 11) >= message(0x90, 10));
    EXPECT_TRUE(message(0x90, 10) <= message(0x90, 11));
    EXPECT_FALSE(message(0x90, 11) <= message(0x90, 10));
}

TEST(MidiMessageTest, MessagesThatDifferInTheRestAreGreaterOrEqualBothWaysAndLessOrEqualNeither) {
    const MidiMessage a = message(0x90, 60, 1, 0);
    const MidiMessage b = message(0x90, 60, 2, 0);
    EXPECT_TRUE(a >= b);
    EXPECT_TRUE(b >= a);
    EXPECT_FALSE(a <= b);
    EXPECT_FALSE(b <= a);
    EXPECT_TRUE(a <= a);
}

}
}
