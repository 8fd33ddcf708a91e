#include "Backend/core/xml/XmlDocument.h"
#include "Backend/input/KeyConfigurationMap.h"
#include "tests/support/FakeHost.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace {

using Backend::ComputerInput::KeyConfiguration;
using Backend::ComputerInput::KeyConfigurationMap;

Key keyOf(const char* id) {
    return Key(std::string_view(id));
}

class KeyConfigurationMapTest : public testing::Test {
protected:
    void read(const std::string& xml) {
        m_keys.readXml(Backend::XmlDocument(xml, false).getRootElement(), m_host.mirel(), m_useKeyUpMod);
    }

    KeyConfigurationMap mapOf(const std::string& keys) {
        KeyConfigurationMap map;
        bool useKeyUpMod = false;
        map.readXml(Backend::XmlDocument("<ComputerInput>" + keys + "</ComputerInput>", false).getRootElement(),
                    m_host.mirel(), useKeyUpMod);
        return map;
    }

    std::string write(const std::vector<Key>& selected = {}) {
        std::ostringstream stream;
        m_keys.writeKeys(stream, 0, selected);
        return stream.str();
    }

    TestSupport::FakeHost m_host;
    KeyConfigurationMap m_keys;
    bool m_useKeyUpMod = false;
};

TEST_F(KeyConfigurationMapTest, OtherElementsAreIgnored) {
    read(R"(<ComputerInput useKeyUpMod="true"><Key id="A"/></ComputerInput>)");
    for (const char* xml : {"<Controls useKeyUpMod='false'><Key id='B'/></Controls>", "<computerinput/>", "no document",
                            "<Key id='B'/>", "", "<ComputerInput><Key></ComputerInput>"}) {
        read(xml);
        EXPECT_EQ(m_keys.size(), 1u) << xml;
        EXPECT_TRUE(m_useKeyUpMod) << xml;
    }
}

TEST_F(KeyConfigurationMapTest, AnElementReplacesAllUnlessItMerges) {
    read(R"(<ComputerInput><Key id="A"/><Key id="B"/></ComputerInput>)");
    read(R"(<ComputerInput merge="true"><Key id="C"/></ComputerInput>)");
    EXPECT_EQ(m_keys.size(), 3u);
    for (const char* merge : {"", "merge='false'", "merge='True'", "merge='1'"}) {
        read(R"(<ComputerInput merge="true"><Key id="B"/></ComputerInput>)");
        read("<ComputerInput " + std::string(merge) + "><Key id=\"D\"/></ComputerInput>");
        EXPECT_EQ(m_keys.size(), 1u) << merge;
        EXPECT_TRUE(m_keys.find(keyOf("D"))) << merge;
    }
}

TEST_F(KeyConfigurationMapTest, AMergedKeyWithoutFunctionsClearsItsKey) {
    read(
        R"(<ComputerInput><Key id="A"><Function><Down><ResetMirel/></Down></Function></Key><Key id="B"/></ComputerInput>)");
    read(R"(<ComputerInput merge="yes"><Key id="A" global="false"/></ComputerInput>)");
    ASSERT_TRUE(m_keys.find(keyOf("A")));
    EXPECT_EQ(m_keys.find(keyOf("A"))->getFunctionCount(), 0);
    EXPECT_FALSE(m_keys.find(keyOf("A"))->isGlobal());
    EXPECT_EQ(m_keys.size(), 2u);
}

TEST_F(KeyConfigurationMapTest, TheLastOfTheSameKeyCounts) {
    read(R"(<ComputerInput><Key id="A" global="false"/><Key id="Shift A"/><Key id="A"/></ComputerInput>)");
    EXPECT_EQ(m_keys.size(), 2u);
    EXPECT_TRUE(m_keys.find(keyOf("A"))->isGlobal());
}

TEST_F(KeyConfigurationMapTest, TheFlagIsThatOfTheLastElement) {
    read(R"(<ComputerInput useKeyUpMod="yes"/>)");
    EXPECT_TRUE(m_useKeyUpMod);
    read(R"(<ComputerInput merge="true"/>)");
    EXPECT_FALSE(m_useKeyUpMod);
}

TEST_F(KeyConfigurationMapTest, KeysWithoutANameShareOneEntry) {
    read(R"(<ComputerInput><Key id=""/><Key id="what"/><Key id="Left Shift"/><Key/></ComputerInput>)");
    EXPECT_EQ(m_keys.size(), 1u);
    EXPECT_TRUE(m_keys.find(Key()));
    EXPECT_EQ(write(), "<Key id=\"Unknown\" global=\"true\">\n</Key>\n");
}

TEST_F(KeyConfigurationMapTest, OnlyKeyElementsInTheElementItselfCount) {
    read(
        "<ComputerInput>text<!-- note --><key id='A'/><Group><Key id='B'/></Group><Key id='C'><Key id='D'/></Key>"
        "</ComputerInput>");
    EXPECT_EQ(m_keys.size(), 1u);
    EXPECT_TRUE(m_keys.find(keyOf("C")));
}

TEST_F(KeyConfigurationMapTest, WritesKeysInTheOrderOfTheirIds) {
    read(R"(<ComputerInput><Key id="Z"/><Key id="Control A"/><Key id="B"/><Key id="1"/></ComputerInput>)");
    EXPECT_EQ(write(),
              "<Key id=\"1\" global=\"true\">\n</Key>\n<Key id=\"B\" global=\"true\">\n</Key>\n"
              "<Key id=\"Control A\" global=\"true\">\n</Key>\n<Key id=\"Z\" global=\"true\">\n</Key>\n");
}

TEST_F(KeyConfigurationMapTest, WritesSelectedKeysAndEmptyOnesForThoseItLacks) {
    read(R"(<ComputerInput><Key id="A" global="false"/><Key id="B"/></ComputerInput>)");
    EXPECT_EQ(write({keyOf("X"), keyOf("A")}),
              "<Key id=\"X\" global=\"true\">\n</Key>\n<Key id=\"A\" global=\"false\">\n</Key>\n");
}

TEST_F(KeyConfigurationMapTest, EqualityLeavesKeysThatDoNothingOut) {
    const std::string real = R"(<Key id="A"><Function><Down><ResetMirel/></Down></Function></Key>)";
    const std::string other = R"(<Key id="A"><Function><Down><ShowProgramMenu/></Down></Function></Key>)";
    const std::string local = R"(<Key id="A" global="no"><Function><Down><ResetMirel/></Down></Function></Key>)";
    const std::string nothing = R"(<Key id="B" global="no"/><Key id="C"><Function/></Key>)";
    EXPECT_TRUE(mapOf(real) == mapOf(real + nothing));
    EXPECT_TRUE(mapOf(real + nothing) == mapOf(real));
    EXPECT_TRUE(mapOf("") == mapOf(nothing));
    EXPECT_FALSE(mapOf(real) == mapOf(other));
    EXPECT_FALSE(mapOf(real) == mapOf(local));
    EXPECT_FALSE(mapOf(real) == mapOf(""));
    EXPECT_FALSE(mapOf("") == mapOf(real));
    EXPECT_FALSE(mapOf(real) == mapOf(real + R"(<Key id="D"><Function><Up><ShowHelp/></Up></Function></Key>)"));
}

TEST_F(KeyConfigurationMapTest, RangesAreThoseOfAllKeys) {
    EXPECT_TRUE(m_keys.getZoneRanges().empty());

    read(R"(<ComputerInput>
        <Key id="A"><Function><Down><MidiNoteOn zone="0" note="C4"/></Down></Function></Key>
        <Key id="B"><Function><Up><MidiNoteOn zone="0" note="C2"/></Up></Function></Key>
        <Key id="C"><Function><Down><MidiNoteOn zone="7" note="C3"/></Down></Function></Key>
        <Key id="D"><Function><Down><MidiNoteOff zone="8" note="C3"/></Down></Function></Key></ComputerInput>)");
    const auto ranges = m_keys.getZoneRanges();
    ASSERT_EQ(ranges.size(), 2u);
    EXPECT_EQ(ranges[0].id, 0);
    EXPECT_EQ(ranges[0].lowNote.getName(), "C2");
    EXPECT_EQ(ranges[0].highNote.getName(), "C4");
    EXPECT_EQ(ranges[1].id, 7);
    EXPECT_EQ(ranges[1].lowNote.getName(), "C3");
}

TEST_F(KeyConfigurationMapTest, IteratesOverEveryKeyOnce) {
    read(R"(<ComputerInput><Key id="A"/><Key id="B"/><Key id="Shift A"/></ComputerInput>)");
    std::vector<Key> keys;
    for (const auto iterator = m_keys.createIterator(); iterator->hasNext();)
        keys.push_back(iterator->next()->getKey());
    std::sort(keys.begin(), keys.end());
    EXPECT_EQ(keys, (std::vector<Key>{keyOf("A"), keyOf("B"), keyOf("Shift A")}));
    EXPECT_FALSE(m_keys.find(keyOf("C")));
}

}
