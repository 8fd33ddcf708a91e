#include "Backend/core/xml/XmlDocument.h"
#include "Backend/functions/FunctionFactory.h"
#include "Backend/functions/NoFunction.h"
#include "Backend/input/KeyConfiguration.h"
#include "tests/support/FakeHost.h"
#include "tests/support/FunctionRows.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

using Backend::ComputerInput::KeyConfiguration;
using Backend::FunctionManagement::Function;
using Backend::Zones::Zone;

class ButtonConfigurationTest : public testing::Test {
protected:
    KeyConfiguration read(const std::string& xml) {
        return KeyConfiguration(Backend::XmlDocument(xml, false).getRootElement(), m_host.mirel());
    }

    // A key with these elements in it.
    KeyConfiguration readInside(const std::string& inside) { return read("<Key id=\"A\">" + inside + "</Key>"); }

    std::unique_ptr<Function> make(const std::string& xml) { return TestSupport::readFunction(xml, m_host.mirel()); }

    std::unique_ptr<Function> makeNone() {
        return std::make_unique<Backend::FunctionManagement::Functions::NoFunction>(m_host.mirel());
    }

    static std::string write(const KeyConfiguration& key, int indent = 0) {
        std::ostringstream stream;
        key.writeXml(stream, indent);
        return stream.str();
    }

    // The two functions of an entry, "-" for none.
    static std::string slots(const KeyConfiguration& key, std::size_t index) {
        const ButtonFunction& entry = key.getFunctions().at(index);
        const auto slot = [](const auto& function) { return function ? TestSupport::write(*function) : "-"; };
        return slot(entry.downFunction) + " " + slot(entry.upFunction);
    }

    TestSupport::FakeHost m_host;
};

TEST_F(ButtonConfigurationTest, WritesOneElementALine) {
    const auto key = read(R"(<Key id="H" global="true"><Function keepSending="false"><Down>
        <MidiNoteOn zone="1" note="G#3" velocity="100"/></Down><Up>
        <MidiNoteOff zone="1" note="G#3" velocity="100"/></Up></Function></Key>)");
    EXPECT_EQ(write(key, 1),
              "\t<Key id=\"H\" global=\"true\">\n"
              "\t\t<Function keepSending=\"false\">\n"
              "\t\t\t<Down>\n"
              "\t\t\t\t<MidiNoteOn zone=\"1\" note=\"G#3\" velocity=\"100\"/>\n"
              "\t\t\t</Down>\n"
              "\t\t\t<Up>\n"
              "\t\t\t\t<MidiNoteOff zone=\"1\" note=\"G#3\" velocity=\"100\"/>\n"
              "\t\t\t</Up>\n"
              "\t\t</Function>\n"
              "\t</Key>\n");
}

TEST_F(ButtonConfigurationTest, AKeyWithoutFunctionsIsWrittenAsSuch) {
    const auto key = read(R"(<Key id="1" global="true"></Key>)");
    EXPECT_EQ(key.getFunctionCount(), 0);
    EXPECT_FALSE(key.hasFunction());
    EXPECT_EQ(write(key), "<Key id=\"1\" global=\"true\">\n</Key>\n");
}

TEST_F(ButtonConfigurationTest, AKeyWithoutAnIdIsNotAKey) {
    EXPECT_EQ(read(R"(<Key id="" global="true"><Function><Down><MoveWindow/></Down></Function></Key>)").getKey(),
              Key());
    EXPECT_EQ(read("<Key/>").getKey().getCode(), -1);
    EXPECT_EQ(read(R"(<Key id="nonsense"/>)").getKey().getCode(), -1);
    EXPECT_EQ(read(R"(<Key id=" A"/>)").getKey().getCode(), -1);
}

TEST_F(ButtonConfigurationTest, KeysAreGlobalByDefault) {
    for (const char* text : {"", R"(global="true")", R"(global="yes")", R"(global="False")", R"(global="0")"})
        EXPECT_TRUE(read("<Key id=\"A\" " + std::string(text) + "/>").isGlobal()) << text;
    for (const char* text : {R"(global="false")", R"(global="FALSE")", R"(global="no")", R"(global="NO")"})
        EXPECT_FALSE(read("<Key id=\"A\" " + std::string(text) + "/>").isGlobal()) << text;
    EXPECT_EQ(write(read(R"(<Key id="A" global="NO"/>)")), "<Key id=\"A\" global=\"false\">\n</Key>\n");
    EXPECT_TRUE(KeyConfiguration().isGlobal());
}

TEST_F(ButtonConfigurationTest, EveryFunctionElementIsAnEntry) {
    const auto key = readInside(R"(<Function keepSending="true"><Down><ShowHelp type="on"/></Down></Function>
        <!-- a comment --><Other><Function/></Other>text
        <Function><Up><ShowHelp type="off"/></Up></Function><function/><Function keepSending="True"/>)");
    ASSERT_EQ(key.getFunctionCount(), 3);
    EXPECT_EQ(slots(key, 0), R"(<ShowHelp type="on"/> -)");
    EXPECT_EQ(slots(key, 1), R"(- <ShowHelp type="off"/>)");
    EXPECT_EQ(slots(key, 2), "- -");
    EXPECT_TRUE(key.getKeepSending(0));
    EXPECT_FALSE(key.getKeepSending(1));
    EXPECT_FALSE(key.getKeepSending(2));
}

TEST_F(ButtonConfigurationTest, TheFirstSlotWithAFunctionCounts) {
    struct Row {
        const char* inside;
        const char* slots;
    };

    const Row rows[] = {
        {R"(<Down/><Down><ShowHelp type="on"/></Down>)", R"(<ShowHelp type="on"/> -)"},
        {R"(<Down><Bogus/></Down><Down><ShowHelp type="on"/></Down>)", R"(<ShowHelp type="on"/> -)"},
        {R"(<Down><NoFunction/></Down><Down><ShowHelp type="on"/></Down>)", R"(<ShowHelp type="on"/> -)"},
        {R"(<Down><ResetMirel/></Down><Down><ShowHelp type="on"/></Down>)", "<ResetMirel/> -"},
        {R"(<Down><Bogus/><ShowHelp type="on"/></Down>)", "- -"},
        {R"(<Down><!-- first --><ShowHelp type="on"/></Down>)", R"(<ShowHelp type="on"/> -)"},
        {R"(<Down>text<ShowHelp type="on"/></Down>)", R"(<ShowHelp type="on"/> -)"},
        {R"(<Down><Wrap><ShowHelp/></Wrap></Down>)", "- -"},
        {R"(<Up/><Up><Bogus/></Up><Up><ResetMirel/></Up><Up><ShowHelp/></Up>)", "- <ResetMirel/>"},
        {R"(<Up><ResetMirel/></Up><Down><ShowProgramMenu/></Down>)", "<ShowProgramMenu/> <ResetMirel/>"},
        {R"(<down><ResetMirel/></down><DOWN><ResetMirel/></DOWN><UP><ResetMirel/></UP>)", "- -"},
        {R"(<ResetMirel/>)", "- -"},
        {"", "- -"},
    };

    for (const Row& row : rows) {
        const auto key = readInside("<Function>" + std::string(row.inside) + "</Function>");
        ASSERT_EQ(key.getFunctionCount(), 1) << row.inside;
        EXPECT_EQ(slots(key, 0), row.slots) << row.inside;
    }
}

TEST_F(ButtonConfigurationTest, ASlotWithoutAFunctionIsNotWritten) {
    EXPECT_EQ(write(readInside("<Function><Down><NoFunction/></Down><Up/></Function>")),
              "<Key id=\"A\" global=\"true\">\n\t<Function keepSending=\"false\">\n\t</Function>\n</Key>\n");
}

TEST_F(ButtonConfigurationTest, GivesTagsOfEntriesAndNoneBeyond) {
    const auto key = readInside("<Function><Down><ProgramChange/></Down></Function>");
    EXPECT_EQ(key.getDownFunctionTag(0), "ProgramChange");
    EXPECT_EQ(key.getUpFunctionTag(0), "NoFunction");
    for (const int index : {-1, 1, 5, INT32_MAX, INT32_MIN}) {
        EXPECT_EQ(key.getDownFunctionTag(index), "NoFunction") << index;
        EXPECT_EQ(key.getUpFunctionTag(index), "NoFunction") << index;
        EXPECT_FALSE(key.getKeepSending(index)) << index;
    }
}

TEST_F(ButtonConfigurationTest, SettingTheOneAfterTheLastAddsAnEntry) {
    KeyConfiguration key{Key(std::string_view("A"))};
    key.setUpFunction(make("<ResetMirel/>"), 0);
    ASSERT_EQ(key.getFunctionCount(), 1);
    EXPECT_EQ(slots(key, 0), "- <ResetMirel/>");
    EXPECT_FALSE(key.getKeepSending(0));
    key.setDownFunction(make("<ShowProgramMenu/>"), 1);
    ASSERT_EQ(key.getFunctionCount(), 2);
    EXPECT_EQ(slots(key, 1), "<ShowProgramMenu/> -");
}

TEST_F(ButtonConfigurationTest, SettingReplacesASlotAndLeavesTheOther) {
    KeyConfiguration key{Key(std::string_view("A"))};
    key.setDownFunction(make("<ResetMirel/>"), 0);
    key.setUpFunction(make("<ShowProgramMenu/>"), 0);
    key.setKeepSending(0, true);
    key.setDownFunction(make("<ShowSaveDialog/>"), 0);
    EXPECT_EQ(slots(key, 0), "<ShowSaveDialog/> <ShowProgramMenu/>");
    key.setUpFunction(nullptr, 0);
    EXPECT_EQ(slots(key, 0), "<ShowSaveDialog/> -");
    EXPECT_TRUE(key.getKeepSending(0));
    EXPECT_EQ(key.getFunctionCount(), 1);
}

TEST_F(ButtonConfigurationTest, SettingElsewhereDoesNothing) {
    KeyConfiguration key{Key(std::string_view("A"))};
    for (const int index : {1, 2, -1, INT32_MIN, INT32_MAX}) {
        key.setDownFunction(make("<ResetMirel/>"), index);
        key.setUpFunction(make("<ResetMirel/>"), index);
        key.setKeepSending(index, true);
    }
    EXPECT_EQ(key.getFunctionCount(), 0);
}

TEST_F(ButtonConfigurationTest, OnlyRealFunctionsCountAsSuch) {
    KeyConfiguration key{Key(std::string_view("A"))};
    EXPECT_FALSE(key.hasFunction());
    key.setDownFunction(makeNone(), 0);
    key.setUpFunction(nullptr, 0);
    EXPECT_FALSE(key.hasFunction());
    key.setUpFunction(make("<ShowHelp/>"), 1);
    EXPECT_TRUE(key.hasFunction());
}

TEST_F(ButtonConfigurationTest, CopiesAreDeep) {
    const auto original = readInside(R"(<Function><Down><ResetMirel/></Down><Up><ShowHelp/></Up></Function>)");
    KeyConfiguration copy(original);
    KeyConfiguration assigned;
    assigned = original;

    for (KeyConfiguration* each : {&copy, &assigned}) {
        EXPECT_TRUE(*each == original);
        EXPECT_NE(each->getFunctions()[0].downFunction.get(), original.getFunctions()[0].downFunction.get());
        EXPECT_NE(each->getFunctions()[0].upFunction.get(), original.getFunctions()[0].upFunction.get());
        each->setDownFunction(nullptr, 0);
        EXPECT_FALSE(*each == original);
    }

    const KeyConfiguration& self = assigned;
    assigned = self;
    EXPECT_EQ(slots(assigned, 0), R"(- <ShowHelp type="toggle"/>)");
    EXPECT_EQ(slots(original, 0), R"(<ResetMirel/> <ShowHelp type="toggle"/>)");
}

TEST_F(ButtonConfigurationTest, EqualityComparesKeyGlobalAndSlots) {
    const std::string inside = "<Function><Down><ResetMirel/></Down></Function>";
    const auto key = readInside(inside);
    EXPECT_TRUE(key == readInside(inside));
    EXPECT_FALSE(key == read("<Key id=\"B\">" + inside + "</Key>"));
    EXPECT_FALSE(key == read("<Key id=\"Shift A\">" + inside + "</Key>"));
    EXPECT_FALSE(key == read("<Key id=\"A\" global=\"no\">" + inside + "</Key>"));
    EXPECT_FALSE(key == readInside("<Function><Up><ResetMirel/></Up></Function>"));
    EXPECT_FALSE(key == readInside("<Function><Down><ShowProgramMenu/></Down></Function>"));
    EXPECT_FALSE(key == readInside(inside + inside));
    EXPECT_FALSE(key == readInside(inside + "<Function/>"));
    EXPECT_FALSE(key == readInside(""));
    EXPECT_FALSE(readInside("") == key);
    EXPECT_TRUE(key == readInside(R"(<Function keepSending="true"><Down><ResetMirel/></Down></Function>)"));
}

TEST_F(ButtonConfigurationTest, EmptySlotsAreEqualWhateverMakesThemEmpty) {
    KeyConfiguration none{Key(std::string_view("A"))};
    none.setDownFunction(makeNone(), 0);
    none.setUpFunction(make("<ResetMirel/>"), 0);
    const auto null = readInside("<Function><Up><ResetMirel/></Up></Function>");
    EXPECT_TRUE(none == null);
    EXPECT_TRUE(null == none);
}

TEST_F(ButtonConfigurationTest, EntriesThatAreAllEmptyEqualNoEntries) {
    KeyConfiguration none{Key(std::string_view("A"))};
    none.setDownFunction(makeNone(), 0);
    EXPECT_TRUE(readInside("") == readInside("<Function/><Function/>"));
    EXPECT_TRUE(readInside("<Function/><Function/>") == readInside(""));
    EXPECT_TRUE(none == readInside(""));
    EXPECT_TRUE(none == readInside("<Function/>"));
}

std::string describe(const std::vector<Zone>& ranges) {
    std::string text;
    for (const Zone& range : ranges)
        text += std::to_string(range.id) + ":" + range.lowNote.getName() + "-" + range.highNote.getName() + " ";
    return text;
}

TEST_F(ButtonConfigurationTest, RangesTakeInTheNotesOfBothSlotsAndAllEntries) {
    const auto key = readInside(R"(
        <Function><Down><MidiNoteOn zone="2" note="E4"/></Down><Up><MidiNoteOn zone="2" note="C4"/></Up></Function>
        <Function><Down><MidiNoteOn zone="1" note="C5"/></Down><Up><MidiNoteOff zone="3" note="C4"/></Up></Function>
        <Function><Down><MidiNoteOn note="C1"/></Down><Up><MidiNoteOn zone="1"/></Up></Function>
        <Function><Down><MidiNoteOn zone="2" note="D4"/></Down></Function>)");
    std::vector<Zone> ranges;
    key.addZoneRanges(ranges);
    EXPECT_EQ(describe(ranges), "2:C4-E4 1:C5-C5 ");
    readInside(R"(<Function><Up><MidiNoteOn zone="1" note="C6"/></Up></Function>)").addZoneRanges(ranges);
    EXPECT_EQ(describe(ranges), "2:C4-E4 1:C5-C6 ");
}

TEST_F(ButtonConfigurationTest, RangesThatWereUnsetTakeTheNotes) {
    Zone unset;
    unset.id = 4;
    std::vector<Zone> ranges = {unset};
    readInside(R"(<Function><Down><MidiNoteOn zone="4" note="G9"/></Down></Function>)").addZoneRanges(ranges);
    EXPECT_EQ(describe(ranges), "4:G9-G9 ");
}

}
