// How windows that edit a function see it.
#include "Backend/functions/FunctionSettingsTypes.h"
#include "Backend/functions/Functions.h"
#include "tests/support/FakeHost.h"
#include "tests/support/FunctionRows.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace {

using namespace Backend::FunctionManagement;
using Backend::MidiEngine::MidiMessage;
using TestSupport::FakeHost;
using TestSupport::makeFunction;
using TestSupport::readFunction;
using TestSupport::readFunctionRows;
using TestSupport::write;

class FunctionSettingsTest : public testing::Test {
protected:
    // The settings of a new function of each class of a kind, by class name.
    template <class Kind, class Check>
    int forEach(Check check) {
        int count = 0;
        for (const auto& row : readFunctionRows()) {
            const auto function = makeFunction(row, m_host.mirel());
            if (auto* const settings = dynamic_cast<Kind*>(function.get())) {
                SCOPED_TRACE(row.className);
                check(row.className, *settings, *function);
                ++count;
            }
        }
        return count;
    }

    FakeHost m_host;
};

// The six flags of a kind that picks things: type, value, up and down, selected, specific, all.
template <class Kind>
std::string flagsOf(const Kind& settings) {
    std::string flags;
    for (const bool flag : {settings.hasType(), settings.hasValue(), settings.allowsUpDown(), settings.allowsSelected(),
                            settings.allowsSpecific(), settings.allowsAll()})
        flags += flag ? 'y' : 'n';
    return flags;
}

const std::set<std::string> PICKED_ONLY = {"SelectZone",    "DataSelectLayer", "EditSelectLayer",
                                           "DataSelectOsc", "ChangeProgram",   "ChangeDefaultMidiOutput"};
constexpr const char* PICK_AND_CHANGE = "yynyyy";
constexpr const char* PICK = "ynynyn";
constexpr const char* CHANGE = "nynnnn";

TEST_F(FunctionSettingsTest, SelectKindsListTheirChoices) {
    EXPECT_EQ(forEach<SelectSettingsType>([](const std::string& name, auto& settings, auto&) {
                  EXPECT_EQ(flagsOf(settings), name == "ChangeTempo"        ? CHANGE
                                               : PICKED_ONLY.contains(name) ? PICK
                                                                            : PICK_AND_CHANGE);
              }),
              11);
    EXPECT_EQ(forEach<ChangeBooleanSettingsType>(
                  [](const auto&, auto& settings, auto&) { EXPECT_EQ(flagsOf(settings), PICK_AND_CHANGE); }),
              4);
    EXPECT_EQ(forEach<ChangeNoteToggleSettingsType>(
                  [](const auto&, auto& settings, auto&) { EXPECT_EQ(flagsOf(settings), PICK_AND_CHANGE); }),
              1);
}

TEST_F(FunctionSettingsTest, SelectControlKindListsItsChoices) {
    // Directions, selected, value, all.
    const std::map<std::string, std::string> flags = {
        {"SelectControl", "ynnn"}, {"SetWidgetFocus", "yynn"}, {"ChangeControl", "nyyn"}, {"SendControlData", "nyny"}};
    EXPECT_EQ(forEach<SelectControlSettingsType>([&](const std::string& name, auto& settings, auto&) {
                  std::string found;
                  for (const bool flag : {settings.allowsDirections(), settings.allowsSelected(), settings.hasValue(),
                                          settings.allowsAll()})
                      found += flag ? 'y' : 'n';
                  EXPECT_EQ(found, flags.at(name));
              }),
              4);
}

TEST_F(FunctionSettingsTest, SelectKindsTakeTypeAndValue) {
    forEach<SelectSettingsType>([](const std::string& name, SelectSettingsType& settings, Function& function) {
        const SelectType type(SelectType::SPECIFIC, 3);
        const RelativeFixedValue value(false, 9);
        settings.setSelectType(type);
        settings.setValue(value);
        EXPECT_EQ(settings.getSelectType(), name == "ChangeTempo" ? SelectType() : type);
        EXPECT_EQ(settings.getValue(), PICKED_ONLY.contains(name) ? RelativeFixedValue() : value);
        const std::string attributes = name == "ChangeTempo"        ? R"( value="9")"
                                       : PICKED_ONLY.contains(name) ? R"( type="3")"
                                                                    : R"( type="3" value="9")";
        EXPECT_EQ(write(function), "<" + function.getXmlTag() + attributes + "/>");
    });
    forEach<ChangeBooleanSettingsType>([](const auto&, ChangeBooleanSettingsType& settings, Function& function) {
        settings.setSelectType(SelectType(SelectType::ALL));
        settings.setValue(OnOffToggle(OnOffToggle::ON));
        EXPECT_EQ(settings.getSelectType(), SelectType(SelectType::ALL));
        EXPECT_EQ(settings.getValue(), OnOffToggle(OnOffToggle::ON));
        EXPECT_EQ(write(function), "<" + function.getXmlTag() + R"( type="all" value="on"/>)");
    });
    forEach<ChangeNoteToggleSettingsType>([](const auto&, ChangeNoteToggleSettingsType& settings, Function& function) {
        settings.setSelectType(SelectType(SelectType::ALL));
        settings.setValue(NoteToggle(NoteToggle::TYPE1));
        EXPECT_EQ(settings.getSelectType(), SelectType(SelectType::ALL));
        EXPECT_EQ(settings.getValue(), NoteToggle(NoteToggle::TYPE1));
        EXPECT_EQ(write(function), R"(<ChangeLayerNoteToggle type="all" value="type1"/>)");
    });
}

TEST_F(FunctionSettingsTest, SelectControlKindTakesTypeAndValue) {
    forEach<SelectControlSettingsType>([](const std::string& name, auto& settings, Function& function) {
        const SelectControlType type(SelectControlType::SPECIFIC, Cell(3, 4));
        const RelativeFixedValue value(true, -9);
        settings.setSelectControlType(type);
        settings.setValue(value);
        EXPECT_EQ(settings.getSelectControlType(), type);
        EXPECT_EQ(settings.getValue(), name == "ChangeControl" ? value : RelativeFixedValue());
        EXPECT_EQ(write(function), "<" + function.getXmlTag() + R"( type="3,4")" +
                                       (name == "ChangeControl" ? R"( value="-9")" : "") + "/>");
    });
}

TEST_F(FunctionSettingsTest, NewOnesOfControlsHaveNoCell) {
    forEach<SelectControlSettingsType>(
        [](const auto&, auto& settings, auto&) { EXPECT_EQ(settings.getSelectControlType().getCell(), Cell(-1, -1)); });
}

TEST_F(FunctionSettingsTest, OtherKindsTakeTheirValues) {
    EXPECT_EQ(forEach<OnOffToggleSettingsType>([](const auto&, auto& settings, Function& function) {
                  EXPECT_EQ(settings.getOnOffToggle(), OnOffToggle(OnOffToggle::TOGGLE));
                  settings.setOnOffToggle(OnOffToggle(OnOffToggle::OFF));
                  EXPECT_EQ(settings.getOnOffToggle(), OnOffToggle(OnOffToggle::OFF));
                  EXPECT_EQ(write(function), "<" + function.getXmlTag() + R"( type="off"/>)");
              }),
              14);
    EXPECT_EQ(forEach<LoadPresetSettingsType>([](const auto&, auto& settings, Function& function) {
                  EXPECT_EQ(settings.getPresetName(), "");
                  settings.setPresetName("A & B");
                  EXPECT_EQ(settings.getPresetName(), "A & B");
                  EXPECT_EQ(write(function), "<" + function.getXmlTag() + R"( preset="A &amp; B"/>)");
              }),
              6);
    EXPECT_EQ(forEach<MoveWindowSettingsType>([](const auto&, auto& settings, Function& function) {
                  settings.setX(RelativeFixedValue(true, -3));
                  settings.setY(RelativeFixedValue(false, 4));
                  EXPECT_EQ(settings.getX(), RelativeFixedValue(true, -3));
                  EXPECT_EQ(settings.getY(), RelativeFixedValue(false, 4));
                  EXPECT_EQ(write(function), R"(<MoveWindow x="-3" y="4"/>)");
              }),
              1);
    EXPECT_EQ(forEach<ActionSettingsType>([](const auto&, auto&, auto&) {}), 4);
}

// An event: its status, the attributes of its data bytes (null: it has none), and whether it has a channel.
struct EventRow {
    int status;
    bool hasChannel;
    const char* d1;
    const char* d2;
};

const std::map<std::string, EventRow> EVENTS = {
    {"MidiNoteOn", {0x90, true, "note", "velocity"}},
    {"MidiNoteOff", {0x80, true, "note", "velocity"}},
    {"MidiKeyPressure", {0xa0, true, "key", "pressure"}},
    {"MidiControllerChange", {0xb0, true, "controller", "value"}},
    {"MidiProgramChange", {0xc0, true, "program", nullptr}},
    {"MidiChannelPressure", {0xd0, true, "pressure", nullptr}},
    {"MidiPitchBend", {0xe0, true, "value", nullptr}},
    {"MidiSongPosition", {0xf2, false, "value", nullptr}},
    {"MidiSongSelect", {0xf3, false, "songNumber", nullptr}},
    {"MidiBusSelect", {0xf5, false, "busNumber", nullptr}},
    {"MidiTuneRequest", {0xf6, false, nullptr, nullptr}},
    {"MidiEndOfSysEx", {0xf7, false, nullptr, nullptr}},
    {"MidiTimingTick", {0xf8, false, nullptr, nullptr}},
    {"MidiStartSong", {0xfa, false, nullptr, nullptr}},
    {"MidiContinueSong", {0xfb, false, nullptr, nullptr}},
    {"MidiStopSong", {0xfc, false, nullptr, nullptr}},
    {"MidiActiveSensing", {0xfe, false, nullptr, nullptr}},
    {"MidiSystemReset", {0xff, false, nullptr, nullptr}},
};

TEST_F(FunctionSettingsTest, EventsTakeWhatTheyHaveAndNoMore) {
    constexpr short D1 = 61;
    constexpr char D2 = 62;
    EXPECT_EQ(forEach<MidiSettingsType>([](const std::string& name, MidiSettingsType& settings, Function& function) {
                  const EventRow& event = EVENTS.at(name);
                  EXPECT_EQ(static_cast<int>(settings.getStatus()), event.status);
                  EXPECT_EQ(settings.getZone(), -1);
                  EXPECT_EQ(settings.getOutput(), -1);
                  EXPECT_EQ(settings.getChannel(), -1);
                  settings.setZone(1);
                  settings.setOutput(2);
                  settings.setChannel(3);
                  settings.setD1(D1);
                  settings.setD2(D2);
                  EXPECT_EQ(settings.getZone(), 1);
                  EXPECT_EQ(settings.getOutput(), 2);
                  EXPECT_EQ(settings.getChannel(), event.hasChannel ? 3 : -1);
                  EXPECT_EQ(settings.getD1(), event.d1 ? D1 : 0);
                  EXPECT_EQ(settings.getD2(), event.d2 ? D2 : 0);
                  std::string expected = "<" + function.getXmlTag() + R"( zone="1" output="2")";
                  if (event.hasChannel)
                      expected += R"( channel="3")";
                  if (event.d1)
                      expected +=
                          " " + std::string(event.d1) + (std::string(event.d1) == "note" ? R"(="C#4")" : R"(="61")");
                  if (event.d2)
                      expected += " " + std::string(event.d2) + R"(="62")";
                  EXPECT_EQ(write(function), expected + "/>");
              }),
              18);
}

TEST_F(FunctionSettingsTest, WideValuesTakeFourteenBits) {
    forEach<MidiSettingsType>([](const std::string& name, MidiSettingsType& settings, Function&) {
        if (name != "MidiPitchBend" && name != "MidiSongPosition")
            return;
        for (const short value : {short{0}, short{127}, short{128}, short{8192}, short{16383}, short{32767}}) {
            settings.setD1(value);
            EXPECT_EQ(settings.getD1(), value);
        }
    });
}

TEST_F(FunctionSettingsTest, NumbersKeepTheLowBitsOfTheirField) {
    struct Row {
        const char* read;
        const char* written;
    };

    const Row rows[] = {
        {R"(<MidiNoteOn note="C4" channel="200"/>)", R"(<MidiNoteOn channel="-56" note="C4" velocity="100"/>)"},
        {R"(<MidiNoteOn note="C4" channel="255"/>)", R"(<MidiNoteOn note="C4" velocity="100"/>)"},
        {R"(<MidiNoteOn note="C4" zone="511" output="-1"/>)", R"(<MidiNoteOn note="C4" velocity="100"/>)"},
        {R"(<MidiNoteOn note="C4" velocity="300"/>)", R"(<MidiNoteOn note="C4" velocity="44"/>)"},
        {R"(<MidiNoteOn note="C4" velocity="-1"/>)", R"(<MidiNoteOn note="C4" velocity="-1"/>)"},
        {R"(<MidiNoteOn note="C4" velocity="abc"/>)", R"(<MidiNoteOn note="C4" velocity="100"/>)"},
        {R"(<MidiNoteOn note="C4" velocity="99999999999"/>)", R"(<MidiNoteOn note="C4" velocity="100"/>)"},
        {R"(<MidiNoteOn note="60" velocity=" 12x"/>)", R"(<MidiNoteOn note="C4" velocity="12"/>)"},
        {R"(<MidiControllerChange value="zz"/>)", R"(<MidiControllerChange controller="0" value="100"/>)"},
        {R"(<MidiPitchBend value="65535"/>)", R"(<MidiPitchBend value="-1"/>)"},
        {R"(<MidiPitchBend value="32768"/>)", R"(<MidiPitchBend value="-32768"/>)"},
        {R"(<MidiSongPosition value="65536"/>)", R"(<MidiSongPosition value="0"/>)"},
        {R"(<MidiSongSelect songNumber="384"/>)", R"(<MidiSongSelect songNumber="-128"/>)"},
    };

    for (const Row& row : rows)
        EXPECT_EQ(write(*readFunction(row.read, m_host.mirel())), row.written) << row.read;
}

TEST_F(FunctionSettingsTest, AChangedCloneLeavesItsOriginalAlone) {
    const auto original = readFunction(R"(<MoveWindow x="1" y="2"/>)", m_host.mirel());
    const auto clone = original->clone();
    dynamic_cast<MoveWindowSettingsType&>(*clone).setX(RelativeFixedValue(false, 7));
    EXPECT_EQ(write(*original), R"(<MoveWindow x="1" y="2"/>)");
    EXPECT_EQ(write(*clone), R"(<MoveWindow x="7" y="2"/>)");
    EXPECT_FALSE(*original == *clone);
}

}
