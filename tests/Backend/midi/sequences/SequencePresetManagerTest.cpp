#include "Backend/midi/sequences/SequencePresetManager.h"

#include "Backend/core/xml/XmlDocument.h"
#include "Backend/core/xml/XmlElement.h"
#include "Backend/midi/sequences/OldPresets.h"
#include "Backend/midi/sequences/SequencePresetNames.h"
#include "Backend/midi/sequences/SequenceSetting.h"
#include "Platform/Files.h"
#include "tests/support/CurrentFolder.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sstream>

namespace Backend::SequenceManagement {
namespace {

class SequencePresetManagerTest : public testing::Test {
protected:
    std::string content(const std::string& name) const {
        return Platform::Files::read(m_folder.file(name + ".seq")).value_or("(none)");
    }

    SequenceSetting readSetting(const std::string& xml) const {
        const XmlDocument document(xml, false);
        return SequenceSetting(document.getRootElement(), m_presets);
    }

    TestSupport::TemporaryFolder m_folder;
    SequencePresetManager m_presets{m_folder.path()};
};

TEST_F(SequencePresetManagerTest, AddedPresetsAreFilesInASortedList) {
    m_presets.addSequencePreset("b", " 0, 12 ");
    m_presets.addSequencePreset("a", "0,12|7 V5");
    m_presets.addSequencePreset("b", "0,12");
    EXPECT_EQ(m_presets.getSequencePresetList(), (SequencePresetList{"a", "b"}));
    EXPECT_EQ(content("a"), Platform::Files::withSystemLineEnds(
                                "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<Sequence>0,12|7 V5</Sequence>\n"));
    EXPECT_EQ(m_presets.load("b").toString(), "0,12");
    EXPECT_EQ(SequencePresetManager(m_folder.path()).getSequencePresetList(), (SequencePresetList{"a", "b"}));
}

TEST_F(SequencePresetManagerTest, DeletingTakesTheFileAndTheName) {
    m_presets.addSequencePreset("a", "0");
    m_presets.deleteSequencePreset("a");
    EXPECT_TRUE(m_presets.getSequencePresetList().empty());
    EXPECT_EQ(content("a"), "(none)");
}

TEST_F(SequencePresetManagerTest, DeletingANameThatIsNotInTheListDoesNothing) {
    m_presets.addSequencePreset("a", "0");
    ASSERT_TRUE(Platform::Files::replace(m_folder.file("later.seq"), "x"));
    m_presets.deleteSequencePreset("later");
    m_presets.deleteSequencePreset("none");
    EXPECT_EQ(content("later"), "x");
    EXPECT_EQ(m_presets.getSequencePresetList(), SequencePresetList{"a"});
}

TEST_F(SequencePresetManagerTest, RenamingKeepsTheListSorted) {
    m_presets.addSequencePreset("a", "0");
    m_presets.addSequencePreset("b", "1");
    m_presets.editSequencePreset("a", "c");
    EXPECT_EQ(m_presets.getSequencePresetList(), (SequencePresetList{"b", "c"}));
    EXPECT_EQ(m_presets.load("c").toString(), "0");
    EXPECT_EQ(content("a"), "(none)");
}

TEST_F(SequencePresetManagerTest, RenamingToATakenOrFromAMissingNameDoesNothing) {
    m_presets.addSequencePreset("a", "0");
    m_presets.addSequencePreset("b", "1");
    m_presets.editSequencePreset("a", "b");
    m_presets.editSequencePreset("none", "c");
    m_presets.editSequencePreset("a", "../c");
    EXPECT_EQ(m_presets.getSequencePresetList(), (SequencePresetList{"a", "b"}));
    EXPECT_EQ(m_presets.load("a").toString(), "0");
    EXPECT_EQ(m_presets.load("b").toString(), "1");
}

TEST_F(SequencePresetManagerTest, NamesThatLeadElsewhereAreRefused) {
    for (const char* name : {"", "../a", "a/b", "a\\b", "c:a", "a\nb", "a*"})
        m_presets.addSequencePreset(name, "0");
    EXPECT_TRUE(m_presets.getSequencePresetList().empty());
    EXPECT_TRUE(Platform::Files::list(m_folder.path(), ".seq").empty());
}

TEST_F(SequencePresetManagerTest, TheListIsSortedByNameNotByFile) {
    m_presets.addSequencePreset("a", "0");
    m_presets.addSequencePreset("a b", "1");  // "a b.seq" sorts before "a.seq".
    SequencePresetManager reopened(m_folder.path());
    EXPECT_EQ(reopened.getSequencePresetList(), (SequencePresetList{"a", "a b"}));
    reopened.deleteSequencePreset("a");
    EXPECT_EQ(content("a"), "(none)");
    reopened.deleteSequencePreset("a b");
    EXPECT_EQ(content("a b"), "(none)");
    EXPECT_TRUE(reopened.getSequencePresetList().empty());
}

TEST_F(SequencePresetManagerTest, NamesThatLeadElsewhereAreNotRead) {
    const std::string inside = m_folder.file("inside");
    ASSERT_TRUE(Platform::Files::createFolders(Platform::Files::join(inside, "a")));
    for (const char* file : {"outside.seq", "inside/a/b.seq"})
        ASSERT_TRUE(Platform::Files::replace(m_folder.file(file), "<Sequence>0</Sequence>"));
    EXPECT_TRUE(SequencePresetManager(m_folder.path()).load("outside").hasNodes());
    const SequencePresetManager presets(inside);
    for (const char* name : {"../outside", "..\\outside", "a/b", "a\\b"})
        EXPECT_FALSE(presets.load(name).hasNodes()) << name;
}

TEST_F(SequencePresetManagerTest, AFolderWithoutANameHoldsAndTakesNone) {
    m_presets.addSequencePreset("a", "0");
    const TestSupport::CurrentFolder there(m_folder.path());
    SequencePresetManager presets("");
    EXPECT_TRUE(presets.getSequencePresetList().empty());
    EXPECT_FALSE(presets.load("a").hasNodes());
    presets.addSequencePreset("b", "0");
    presets.deleteSequencePreset("a");
    EXPECT_TRUE(presets.getSequencePresetList().empty());
    EXPECT_EQ(content("b"), "(none)");
    EXPECT_NE(content("a"), "(none)");
}

TEST_F(SequencePresetManagerTest, NamesBeyondAsciiSurvive) {
    const std::string name = "Zo\xC3\xAB \xE2\x80\x93 \xE3\x83\x94\xE3\x82\xA2\xE3\x83\x8E \xF0\x9F\x8E\xB9";
    m_presets.addSequencePreset(name, "0,3");
    EXPECT_EQ(SequencePresetManager(m_folder.path()).getSequencePresetList(), SequencePresetList{name});
    EXPECT_EQ(m_presets.load(name).toString(), "0,3");
}

TEST_F(SequencePresetManagerTest, AFileThatCanNotBeReadGivesNoSequence) {
    for (const char* text : {"", "0,12", "<Sequence>0", "<Other>0</Other>"}) {
        ASSERT_TRUE(Platform::Files::replace(m_folder.file("bad.seq"), text));
        EXPECT_FALSE(m_presets.load("bad").hasNodes()) << text;
    }
    EXPECT_FALSE(m_presets.load("missing").hasNodes());
}

TEST_F(SequencePresetManagerTest, ASettingOfAPresetHasItsSequence) {
    m_presets.addSequencePreset("a", "0,12");
    const SequenceSetting setting(" a ", m_presets);
    EXPECT_EQ(setting.getPreset(), "a");
    EXPECT_EQ(setting.getSequence().toString(), "0,12");
    EXPECT_TRUE(setting.getUseNote() && setting.getUseVelocity() && setting.getUseLength());

    for (const char* none : {"", "  ", "Off", " Off "}) {
        const SequenceSetting empty(none, m_presets);
        EXPECT_EQ(empty.getPreset(), "") << none;
        EXPECT_FALSE(empty.getSequence().hasNodes()) << none;
        EXPECT_TRUE(empty.getUseNote() && empty.getUseVelocity() && empty.getUseLength()) << none;
    }

    EXPECT_TRUE(SequenceSetting().getUseNote());
    EXPECT_TRUE(SequenceSetting().getUseVelocity());
    EXPECT_FALSE(SequenceSetting().getUseLength());
}

TEST_F(SequencePresetManagerTest, AnElementWithAPresetTakesItsFileAndIgnoresItsChild) {
    m_presets.addSequencePreset("a", "0,12");
    const SequenceSetting setting =
        readSetting("<SequenceSetting preset=' a '><Sequence>7</Sequence></SequenceSetting>");
    EXPECT_EQ(setting.getPreset(), "a");
    EXPECT_EQ(setting.getSequence().toString(), "0,12");
    EXPECT_FALSE(readSetting("<SequenceSetting preset='none'><Sequence>7</Sequence></SequenceSetting>")
                     .getSequence()
                     .hasNodes());
    const SequenceSetting own = readSetting("<SequenceSetting preset='  '><Sequence>7</Sequence></SequenceSetting>");
    EXPECT_EQ(own.getPreset(), "");
    EXPECT_EQ(own.getSequence().toString(), "7");
}

TEST_F(SequencePresetManagerTest, AnElementsFlagsAreSetUnlessItSaysOtherwise) {
    const SequenceSetting plain = readSetting("<SequenceSetting/>");
    EXPECT_TRUE(plain.getUseNote());
    EXPECT_TRUE(plain.getUseVelocity());
    EXPECT_TRUE(plain.getUseLength());
    EXPECT_FALSE(readSetting("<SequenceSetting useNote='false'/>").getUseNote());
    EXPECT_FALSE(readSetting("<SequenceSetting useVelocity='false'/>").getUseVelocity());
    EXPECT_FALSE(readSetting("<SequenceSetting useLength='false'/>").getUseLength());
}

TEST_F(SequencePresetManagerTest, ASettingIsWrittenWithItsPresetOrItsSequence) {
    const auto write = [](const SequenceSetting& setting) {
        std::ostringstream stream;
        setting.writeXml(stream, 1);
        return stream.str();
    };

    m_presets.addSequencePreset("a", "0,12");
    SequenceSetting setting("a", m_presets);
    ASSERT_TRUE(setting.getSequence().hasNodes());
    EXPECT_EQ(write(setting),
              "\t<SequenceSetting preset=\"a\" useNote=\"true\" useVelocity=\"true\" useLength=\"true\">\n"
              "\t</SequenceSetting>\n");

    setting.setPreset("");
    setting.setUseNote(false);
    EXPECT_EQ(write(setting),
              "\t<SequenceSetting preset=\"\" useNote=\"false\" useVelocity=\"true\" useLength=\"true\">\n"
              "\t\t<Sequence>0,12</Sequence>\n"
              "\t</SequenceSetting>\n");
}

TEST_F(SequencePresetManagerTest, OldNumbersHaveTheirPresets) {
    const auto nameOf = [this](int number) { return importSequenceSetting(number, 2, m_presets).getPreset(); };
    for (int number = 0; number < 44; ++number)
        EXPECT_EQ(nameOf(number), SEQUENCE_PRESET_NAMES[static_cast<std::size_t>(number)]);
    EXPECT_EQ(nameOf(0), "001 - Oct 1 Up");
    EXPECT_EQ(nameOf(43), "044 - Drums 11");
    EXPECT_EQ(nameOf(44), "042 - Drums 9");
    EXPECT_EQ(nameOf(49), "050 - Note 1 of 2");
    EXPECT_EQ(nameOf(71), "072 - Note 8 of 8");
    EXPECT_EQ(nameOf(90), "073 - Oct 1 Up (2)");
    EXPECT_EQ(nameOf(111), "094 - m2 Down (2)");
    for (const int none : {-1, 45, 46, 47, 48, 72, 80, 89, 112, 1000})
        EXPECT_EQ(nameOf(none), "") << none;
}

TEST_F(SequencePresetManagerTest, OldModesSayWhatCounts) {
    for (const int mode : {-1, 0, 1, 2, 3}) {
        const SequenceSetting setting = importSequenceSetting(0, mode, m_presets);
        EXPECT_EQ(setting.getUseNote(), mode != 1) << mode;
        EXPECT_EQ(setting.getUseVelocity(), mode == 1 || mode == 2) << mode;
    }
}

TEST(SequencePresetNamesTest, NamesAreSortedAndNumbered) {
    EXPECT_EQ(SEQUENCE_PRESET_NAMES.size(), 89u);
    EXPECT_TRUE(std::is_sorted(SEQUENCE_PRESET_NAMES.begin(), SEQUENCE_PRESET_NAMES.end(),
                               [](const char* a, const char* b) { return std::string_view(a) < b; }));
    EXPECT_STREQ(SEQUENCE_PRESET_NAMES[22], "023 - Seq 0");
    EXPECT_STREQ(SEQUENCE_PRESET_NAMES[33], "034 - Drums 1");
}

}
}
