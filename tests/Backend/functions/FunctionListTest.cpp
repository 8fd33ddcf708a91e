// All functions against the table of what they must be like.
#include "Backend/functions/FunctionEnumerator.h"
#include "Backend/functions/FunctionFactory.h"
#include "Backend/functions/Functions.h"
#include "tests/support/FakeHost.h"
#include "tests/support/FunctionRows.h"
#include "tests/support/VisitRecorder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace {

using namespace Backend::FunctionManagement;
using TestSupport::FakeHost;
using TestSupport::makeFunction;
using TestSupport::readFunction;
using TestSupport::readFunctionRows;
using TestSupport::VisitRecorder;
using TestSupport::write;

constexpr std::size_t CLASSES = 64;

// The names of the operations of each visitor, in order.
const std::vector<std::string> ALL_CLASSES = {"ChangeOscSpeed",
                                              "DataSelectOsc",
                                              "ChangeOscPlaying",
                                              "ChangeLayerNoteToggle",
                                              "ChangeLayerSolo",
                                              "ChangeLayerMono",
                                              "ChangeLayerMute",
                                              "ChangeLayerVelocity",
                                              "ChangeLayerTranspose",
                                              "EditSelectLayer",
                                              "DataSelectLayer",
                                              "ChangeGlobalKeyboard",
                                              "ChangeMidiThru",
                                              "ChangeTempo",
                                              "ShowDefaultMidiOutputMenu",
                                              "ChangeDefaultMidiOutput",
                                              "ChangeZoneTranspose",
                                              "SelectZone",
                                              "ShowSaveDialog",
                                              "ResetMirel",
                                              "ShowProgramMenu",
                                              "ChangeProgram",
                                              "SendControlData",
                                              "ChangeControl",
                                              "SetWidgetFocus",
                                              "SelectControl",
                                              "LoadOscillatorPreset",
                                              "LoadLayerPreset",
                                              "LoadControlPreset",
                                              "LoadJoystickInputPreset",
                                              "LoadMidiInputPreset",
                                              "LoadComputerInputPreset",
                                              "ShowHelp",
                                              "ShowJoystick",
                                              "ShowOscillator",
                                              "ShowDisplay",
                                              "ShowZone",
                                              "ShowLayer",
                                              "ShowCc",
                                              "ShowOutput",
                                              "ShowMidiInput",
                                              "ShowControl",
                                              "ShowComputerInput",
                                              "ShowSystem",
                                              "NoFunction",
                                              "MoveWindowFunction",
                                              "MidiKeyPressure",
                                              "MidiSystemReset",
                                              "MidiActiveSensing",
                                              "MidiStopSong",
                                              "MidiContinueSong",
                                              "MidiStartSong",
                                              "MidiTimingTick",
                                              "MidiEndOfSysEx",
                                              "MidiTuneRequest",
                                              "MidiBusSelect",
                                              "MidiSongPosition",
                                              "MidiNoteOn",
                                              "MidiNoteOff",
                                              "MidiPitchBend",
                                              "MidiChannelPressure",
                                              "MidiSongSelect",
                                              "MidiProgramChange",
                                              "MidiControllerChange"};

const std::vector<std::string> KINDS = {
    "ChangeNoteToggleSettingsType", "ChangeBooleanSettingsType", "ActionSettingsType",
    "SelectSettingsType",           "SelectControlSettingsType", "LoadPresetSettingsType",
    "MoveWindowSettingsType",       "OnOffToggleSettingsType",   "MidiSettingsType",
    "NoFunctionSettingsType"};

// By kind, in the order of KINDS.
const std::vector<std::vector<std::string>> MEMBERS = {
    {"ChangeLayerNoteToggle"},
    {"ChangeOscPlaying", "ChangeLayerSolo", "ChangeLayerMute", "ChangeLayerMono"},
    {"ResetMirel", "ShowDefaultMidiOutputMenu", "ShowProgramMenu", "ShowSaveDialog"},
    {"ChangeOscSpeed", "ChangeLayerVelocity", "ChangeLayerTranspose", "EditSelectLayer", "DataSelectLayer",
     "ChangeTempo", "ChangeDefaultMidiOutput", "ChangeZoneTranspose", "SelectZone", "ChangeProgram", "DataSelectOsc"},
    {"SendControlData", "SetWidgetFocus", "SelectControl", "ChangeControl"},
    {"LoadOscillatorPreset", "LoadMidiInputPreset", "LoadLayerPreset", "LoadJoystickInputPreset", "LoadControlPreset",
     "LoadComputerInputPreset"},
    {"MoveWindowFunction"},
    {"ChangeGlobalKeyboard", "ChangeMidiThru", "ShowZone", "ShowSystem", "ShowOutput", "ShowOscillator",
     "ShowMidiInput", "ShowLayer", "ShowJoystick", "ShowHelp", "ShowDisplay", "ShowControl", "ShowComputerInput",
     "ShowCc"},
    {"MidiTuneRequest", "MidiTimingTick", "MidiSystemReset", "MidiStopSong", "MidiStartSong", "MidiSongSelect",
     "MidiSongPosition", "MidiProgramChange", "MidiPitchBend", "MidiNoteOn", "MidiNoteOff", "MidiKeyPressure",
     "MidiEndOfSysEx", "MidiControllerChange", "MidiContinueSong", "MidiChannelPressure", "MidiBusSelect",
     "MidiActiveSensing"},
    {}};

class FunctionListTest : public testing::Test {
protected:
    std::unique_ptr<Function> read(const std::string& xml) { return readFunction(xml, m_host.mirel()); }

    FakeHost m_host;
    const std::vector<TestSupport::FunctionRow> m_rows = readFunctionRows();
};

// The settings of any function.
FunctionSettingsType& settingsOf(Function& function) {
    return dynamic_cast<FunctionSettingsType&>(function);
}

TEST_F(FunctionListTest, HasAllClasses) {
    ASSERT_EQ(m_rows.size(), CLASSES);
    EXPECT_EQ(AllFunctions::SIZE, CLASSES);
    EXPECT_EQ(std::count_if(m_rows.begin(), m_rows.end(), [](const auto& row) { return row.displayName.empty(); }), 1);
}

TEST_F(FunctionListTest, EnumeratesWhatUsersCanChooseInOrder) {
    class Collector : public FunctionEnumerator {
    public:
        void addFunction(const FunctionDescriptor& function) override { functions.push_back(function); }

        std::vector<FunctionDescriptor> functions;
    };
    Collector collector;
    collector.enumerate();
    ASSERT_EQ(collector.functions.size(), CLASSES - 1);
    for (std::size_t i = 0; i < collector.functions.size(); ++i) {
        EXPECT_EQ(collector.functions[i].displayName, m_rows[i].displayName);
        EXPECT_EQ(collector.functions[i].xmlTag, m_rows[i].xmlTag);
    }
}

TEST_F(FunctionListTest, EachHasItsTagAndHelp) {
    std::vector<std::pair<int, std::string>> helpTexts;
    std::apply([&](const auto&... rows) { (helpTexts.emplace_back(rows.helpId, rows.helpText), ...); }, FUNCTION_LIST);
    for (const auto& row : m_rows) {
        const auto function = makeFunction(row, m_host.mirel());
        ASSERT_TRUE(function) << row.className;
        EXPECT_EQ(function->getXmlTag(), row.xmlTag);
        EXPECT_EQ(function->getHelpId(), row.helpId) << row.className;
        const auto help = std::find_if(helpTexts.begin(), helpTexts.end(),
                                       [&](const auto& candidate) { return candidate.first == row.helpId; });
        ASSERT_NE(help, helpTexts.end()) << row.className;
        EXPECT_EQ(help->second, row.helpText) << row.className;
    }
}

TEST_F(FunctionListTest, EachCallsItsOwnOperationOfTheVisitor) {
    for (const auto& row : m_rows) {
        const auto function = makeFunction(row, m_host.mirel());
        VisitRecorder<FunctionVisitor, FunctionVisitorOrder> recorder;
        function->accept(recorder);
        EXPECT_EQ(recorder.calls, 1) << row.className;
        ASSERT_LT(recorder.place, ALL_CLASSES.size());
        EXPECT_EQ(ALL_CLASSES[recorder.place], row.className);
        EXPECT_EQ(recorder.object, dynamic_cast<const void*>(function.get())) << row.className;
    }
}

TEST_F(FunctionListTest, EachIsOfItsKind) {
    for (const auto& row : m_rows) {
        const auto function = makeFunction(row, m_host.mirel());
        VisitRecorder<FunctionSettingsTypeVisitor, FunctionSettingsTypes> recorder;
        settingsOf(*function).accept(recorder);
        EXPECT_EQ(recorder.calls, 1) << row.className;
        ASSERT_LT(recorder.place, KINDS.size());
        EXPECT_EQ(KINDS[recorder.place], row.kind) << row.className;
        EXPECT_EQ(recorder.object, dynamic_cast<const void*>(function.get())) << row.className;
    }
}

// Checks which operation of a kind's visitor a function calls, if it is of that kind.
template <class Kind>
int checkMember(Function& function, const std::string& className, const std::vector<std::string>& members) {
    auto* const settings = dynamic_cast<Kind*>(&function);
    if (!settings)
        return 0;
    VisitRecorder<typename Kind::Visitor, typename Kind::MemberList> recorder;
    settings->accept(recorder);
    EXPECT_EQ(recorder.calls, 1) << className;
    if (recorder.place >= members.size() || Kind::MemberList::SIZE != members.size())
        ADD_FAILURE() << className;
    else
        EXPECT_EQ(members[recorder.place], className);
    EXPECT_EQ(recorder.object, dynamic_cast<const void*>(&function)) << className;
    return 1;
}

TEST_F(FunctionListTest, EachCallsItsOwnOperationOfTheVisitorOfItsKind) {
    for (const auto& row : m_rows) {
        const auto function = makeFunction(row, m_host.mirel());
        const std::string& name = row.className;
        const int kinds = checkMember<ChangeNoteToggleSettingsType>(*function, name, MEMBERS[0]) +
                          checkMember<ChangeBooleanSettingsType>(*function, name, MEMBERS[1]) +
                          checkMember<ActionSettingsType>(*function, name, MEMBERS[2]) +
                          checkMember<SelectSettingsType>(*function, name, MEMBERS[3]) +
                          checkMember<SelectControlSettingsType>(*function, name, MEMBERS[4]) +
                          checkMember<LoadPresetSettingsType>(*function, name, MEMBERS[5]) +
                          checkMember<MoveWindowSettingsType>(*function, name, MEMBERS[6]) +
                          checkMember<OnOffToggleSettingsType>(*function, name, MEMBERS[7]) +
                          checkMember<MidiSettingsType>(*function, name, MEMBERS[8]) +
                          (dynamic_cast<NoFunctionSettingsType*>(function.get()) ? 1 : 0);
        EXPECT_EQ(kinds, 1) << name;
    }
}

TEST_F(FunctionListTest, NewOnesHaveTheirDefaults) {
    for (const auto& row : m_rows)
        EXPECT_EQ(write(*makeFunction(row, m_host.mirel())), row.newElement);
}

TEST_F(FunctionListTest, MissingAttributesReadAsTheirDefaults) {
    for (const auto& row : m_rows) {
        if (row.className == "NoFunction")
            continue;
        const auto function = read("<" + row.xmlTag + "/>");
        ASSERT_TRUE(function) << row.className;
        EXPECT_EQ(write(*function), row.emptyElement);
    }
}

TEST_F(FunctionListTest, WhatIsWrittenIsReadBack) {
    for (const auto& row : m_rows) {
        if (row.className == "NoFunction")
            continue;
        for (const auto& xml : {row.newElement, row.emptyElement, row.exampleElement}) {
            const auto function = read(xml);
            ASSERT_TRUE(function) << xml;
            EXPECT_EQ(write(*function), xml);
            EXPECT_TRUE(*function == *read(xml)) << xml;
        }
    }
}

TEST_F(FunctionListTest, AttributesMayStandInAnyOrderAmongOthers) {
    const auto function =
        read("<MidiNoteOn velocity='9' other='1' note='D2' channel='4' zone='3'>text<Child/></MidiNoteOn>");
    EXPECT_EQ(write(*function), R"(<MidiNoteOn zone="3" channel="4" note="D2" velocity="9"/>)");
}

TEST_F(FunctionListTest, WritesOnALineOfItsOwnWithTabs) {
    for (const auto& row : m_rows) {
        std::ostringstream stream;
        makeFunction(row, m_host.mirel())->writeXml(stream, 3);
        EXPECT_EQ(stream.str(), "\t\t\t" + row.newElement + "\n");
    }
}

TEST_F(FunctionListTest, ClonesAreEqualAndOnTheirOwn) {
    for (const auto& row : m_rows) {
        const auto function =
            row.className == "NoFunction" ? makeFunction(row, m_host.mirel()) : read(row.exampleElement);
        const std::unique_ptr<Function> copy = function->clone();
        ASSERT_TRUE(copy) << row.className;
        const Function& original = *function;
        const Function& clone = *copy;
        EXPECT_NE(&clone, &original);
        EXPECT_TRUE(typeid(clone) == typeid(original)) << row.className;
        EXPECT_TRUE(clone == original) << row.className;
        EXPECT_EQ(write(clone), row.exampleElement);
    }
}

TEST_F(FunctionListTest, AreEqualWithTheSameClassAndParametersOnly) {
    std::vector<std::pair<std::string, std::unique_ptr<Function>>> functions;
    for (const auto& row : m_rows) {
        functions.emplace_back(row.newElement, makeFunction(row, m_host.mirel()));
        if (row.exampleElement != row.newElement)
            functions.emplace_back(row.exampleElement, read(row.exampleElement));
    }
    for (const auto& [leftXml, left] : functions)
        for (const auto& [rightXml, right] : functions)
            EXPECT_EQ(*left == *right, left == right) << leftXml << " " << rightXml;
}

// The attributes in an element's text, each with the blank before it.
std::vector<std::string> attributesOf(const std::string& element) {
    std::vector<std::string> attributes;
    for (auto from = element.find(' '); from != std::string::npos && element[from] == ' ';) {
        const auto end = element.find('"', element.find('"', from) + 1) + 1;
        attributes.push_back(element.substr(from, end - from));
        from = end;
    }
    return attributes;
}

TEST_F(FunctionListTest, EveryAttributeCountsForEquality) {
    int counted = 0;
    for (const auto& row : m_rows) {
        if (row.className == "NoFunction")
            continue;
        const auto bare = read("<" + row.xmlTag + "/>");
        for (const std::string& attribute : attributesOf(row.exampleElement)) {
            const auto changed = read("<" + row.xmlTag + attribute + "/>");
            ASSERT_TRUE(changed) << row.xmlTag << attribute;
            EXPECT_FALSE(*bare == *changed) << row.xmlTag << attribute;
            EXPECT_FALSE(*changed == *bare) << row.xmlTag << attribute;
            ++counted;
        }
    }

    EXPECT_EQ(counted, 109);
}

TEST_F(FunctionListTest, NoFunctionAndUnknownTagsMakeNone) {
    for (const char* tag : {"NoFunction", "", "None", "midinoteon", "MIDINOTEON", "MidiProgramChange", "ShowCc",
                            "MoveWindowFunction", "MidiNoteOn2", "MidiNote", "Function", "Down", "Key"}) {
        EXPECT_FALSE(createDefaultFunction(tag, m_host.mirel())) << tag;
        if (*tag) {
            EXPECT_FALSE(read("<" + std::string(tag) + " type=\"on\"/>")) << tag;
        }
    }
    EXPECT_FALSE(read("no document"));
    EXPECT_FALSE(createFunction(Backend::XmlElement(), m_host.mirel()));
}

TEST_F(FunctionListTest, NoFunctionDoesNothing) {
    Functions::NoFunction function(m_host.mirel());
    function.execute();
    EXPECT_EQ(write(function), "<NoFunction/>");
    const Functions::NoFunction another(m_host.mirel());
    EXPECT_TRUE(function == static_cast<const Function&>(another));
}

TEST_F(FunctionListTest, OnlyNoteOnOccupiesAZone) {
    for (const auto& row : m_rows) {
        const auto function =
            row.className == "NoFunction" ? makeFunction(row, m_host.mirel()) : read(row.exampleElement);
        const Backend::Zones::Zone range = function->getZoneRange();
        if (row.className == "MidiNoteOn") {
            EXPECT_EQ(range.id, 1);
            EXPECT_EQ(range.lowNote.getNumber(), 56);
            EXPECT_EQ(range.highNote.getNumber(), 56);
        } else {
            EXPECT_EQ(range.id, -1) << row.className;
            EXPECT_EQ(range.lowNote.getNumber(), 255) << row.className;
            EXPECT_EQ(range.highNote.getNumber(), 255) << row.className;
        }
    }
}

TEST_F(FunctionListTest, NoteOnWithoutAZoneOccupiesNone) {
    for (const char* zone : {"-1", "-128", "200", "x"}) {
        const auto function = read("<MidiNoteOn note=\"C4\" zone=\"" + std::string(zone) + "\"/>");
        EXPECT_EQ(function->getZoneRange().id, -1) << zone;
        EXPECT_FALSE(function->getZoneRange().lowNote.isNote()) << zone;
    }
    EXPECT_EQ(read(R"(<MidiNoteOn note="C4" zone="256"/>)")->getZoneRange().id, 0);
    EXPECT_FALSE(read(R"(<MidiNoteOn zone="1"/>)")->getZoneRange().lowNote.isNote());
}

}
