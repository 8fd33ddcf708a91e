#include "Host/common/ports/PortList.h"

#include "Host/common/ports/PortFiles.h"
#include "Platform/Files.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <random>

namespace Host {
namespace {

using TestSupport::TemporaryFolder;

std::vector<MidiPortId> ids(const std::vector<std::string>& names) {
    return numberCopies(names);
}

// "1 A#1 +" per row: number, name, copy, and + if it is available.
std::vector<std::string> told(const PortList& list) {
    std::vector<std::string> lines;
    for (const PortRow& row : list.rows())
        lines.push_back(row.id.name + "#" + std::to_string(row.id.copy) + (row.available ? "+" : "-"));
    return lines;
}

using Lines = std::vector<std::string>;

TEST(PortListTest, NewPortsGetRowsAtTheEnd) {
    PortList list;
    EXPECT_TRUE(list.update(ids({"A", "B"})));
    EXPECT_TRUE(list.update(ids({"C", "A", "B"})));
    EXPECT_EQ(told(list), (Lines{"A#1+", "B#1+", "C#1+"}));
    EXPECT_FALSE(list.update(ids({"B", "C", "A"}))) << "the system's order does not matter";
}

TEST(PortListTest, AbsentPortKeepsItsRowAndItsSettings) {
    PortList list;
    list.update(ids({"A", "B", "C"}));
    const PortSettings settings{false, true, 0x0102};
    ASSERT_TRUE(list.setSettings(1, settings));
    EXPECT_TRUE(list.update(ids({"C", "A"})));
    EXPECT_EQ(told(list), (Lines{"A#1+", "B#1-", "C#1+"}));
    EXPECT_EQ(list.rows()[1].settings, settings);
    EXPECT_TRUE(list.update(ids({"D", "C", "B", "A"})));
    EXPECT_EQ(told(list), (Lines{"A#1+", "B#1+", "C#1+", "D#1+"}));
    EXPECT_EQ(list.rows()[1].settings, settings);
}

TEST(PortListTest, PortsOfTheSameNameAreDistinguished) {
    PortList list;
    list.update(ids({"Twin", "Other", "Twin"}));
    EXPECT_EQ(told(list), (Lines{"Twin#1+", "Other#1+", "Twin#2+"}));
    list.setSettings(2, {false, false, 1});
    list.update(ids({"Twin"}));
    EXPECT_EQ(told(list), (Lines{"Twin#1+", "Other#1-", "Twin#2-"}));
    list.update(ids({"Twin", "Twin", "Twin"}));
    EXPECT_EQ(told(list), (Lines{"Twin#1+", "Other#1-", "Twin#2+", "Twin#3+"}));
    EXPECT_FALSE(list.rows()[2].settings.enabled);
}

TEST(PortListTest, LoopOfTheComputerIsNotEnabledByItself) {
    PortList list;
    list.update(ids({"Midi Through:Midi Through Port-0", "A"}));
    EXPECT_FALSE(list.rows()[0].settings.enabled);
    EXPECT_TRUE(list.rows()[1].settings.enabled);
}

TEST(PortListTest, TextReadsBackTheSame) {
    PortList list;
    list.update(ids({"A", "A", "Zo\xC3\xAB \xE3\x83\x94", " blanks  inside ", "line\nend\\n\r", "1 0 ffff 1 x"}));
    list.setSettings(1, {false, true, 0});
    list.setSettings(3, {true, true, 0x8001});
    PortList read;
    read.readText(list.toText());
    EXPECT_EQ(read.toText(), list.toText());
    for (const PortRow& row : read.rows())
        EXPECT_FALSE(row.available) << row.id.name;
    EXPECT_EQ(read.rows()[1].settings, list.rows()[1].settings);
    read.update(ids({"A", "A", "Zo\xC3\xAB \xE3\x83\x94", " blanks  inside ", "line\nend\\n\r", "1 0 ffff 1 x"}));
    EXPECT_EQ(read.rows(), list.rows());
}

TEST(PortListTest, TextHasOneLinePerRow) {
    PortList list;
    list.update(ids({"Launch Pad", "Launch Pad"}));
    list.setSettings(1, {false, true, 0x0003});
    EXPECT_EQ(list.toText(), "1 0 ffff 1 Launch Pad\n0 1 0003 2 Launch Pad\n");
}

TEST(PortListTest, LinesThatMakeNoSenseAreSkipped) {
    PortList list;
    list.readText(
        "\n"
        "nonsense\n"
        "1 0 ffff 1 good\r\n"
        "1 0 ffff 1 good\n"  // Twice.
        "2 0 ffff 1 enabled out of range\n"
        "1 0 10000 1 channels out of range\n"
        "1 0 ffff -1 copy out of range\n"
        "1 0 ffff 1 \n"  // No name.
        "1 0 ffff 1\n"
        "1 0 ffff 99999999999999999999 too far\n"
        " 1 0 ffff 1 blank before\n"
        "0 1 00ff 2 without an end");
    EXPECT_EQ(told(list), (Lines{"good#1-", "without an end#2-"}));
    EXPECT_EQ(list.rows()[1].settings, (PortSettings{false, true, 0x00ff}));
}

TEST(PortListTest, NonsenseOfAnyKindIsSurvived) {
    std::mt19937 random(7);
    const std::string letters = "01 f\n\r\\a\xff-";

    for (int round = 0; round < 2000; ++round) {
        std::string text;
        for (int i = 0; i < 200; ++i)
            text += letters[random() % letters.size()];
        PortList list;
        list.readText(text);
        PortList again;
        again.readText(list.toText());
        ASSERT_EQ(again.rows(), list.rows()) << text;
    }

    PortList list;
    list.readText(std::string(PortList::MAX_FILE_SIZE + 1, '1'));
    EXPECT_TRUE(list.rows().empty());
}

TEST(PortListTest, FullListGivesRowsOfAbsentPortsToNewcomers) {
    constexpr std::size_t FULL = PortList::MAX_ROWS - PortList::KEPT_FOR_BUILT_IN;
    PortList list;
    std::vector<std::string> names;
    for (std::size_t i = 0; i < FULL + 10; ++i)
        names.push_back("port " + std::to_string(i));
    list.update(ids(names));
    EXPECT_EQ(list.rows().size(), FULL) << "what does not fit is left out";

    names.resize(FULL - 2);  // The last two are gone; one of them was set up.
    list.update(ids(names));
    list.setSettings(FULL - 1, {false, false, 1});
    names.push_back("newcomer");
    names.push_back("another");
    EXPECT_TRUE(list.update(ids(names)));
    EXPECT_EQ(list.rows()[FULL - 2].id.name, "newcomer");
    EXPECT_EQ(list.rows()[FULL - 1].id.name, "port " + std::to_string(FULL - 1)) << "settings are not lost";

    list.update({{"Recorder", PortList::BUILT_IN}});
    EXPECT_EQ(list.rows().back().id.name, "Recorder") << "there is always place for what is built in";
}

TEST(PortListTest, SettingsOfAMissingRowChangeNothing) {
    PortList list;
    EXPECT_FALSE(list.setSettings(0, PortSettings()));
    list.update(ids({"A"}));
    EXPECT_FALSE(list.setSettings(1, PortSettings()));
}

TEST(PortFilesTest, ListOutlivesTheProgram) {
    const TemporaryFolder folder;
    const std::string data = folder.file("new folder");
    EXPECT_TRUE(readPortFile(data, INPUTS_FILE).rows().empty());
    PortList list;
    list.update(ids({"A", "B"}));
    ASSERT_TRUE(writePortFile(data, INPUTS_FILE, list.toText()));
    EXPECT_EQ(readPortFile(data, INPUTS_FILE).toText(), list.toText());
    EXPECT_TRUE(Platform::Files::size(Platform::Files::join(data, "Midi Inputs.txt")).has_value());
    EXPECT_TRUE(readPortFile(data, OUTPUTS_FILE).rows().empty());
}

TEST(PortFilesTest, WithoutAFolderNothingIsKept) {
    EXPECT_TRUE(writePortFile("", OUTPUTS_FILE, "1 0 ffff 1 A\n"));
    EXPECT_TRUE(readPortFile("", OUTPUTS_FILE).rows().empty());
}

}
}
