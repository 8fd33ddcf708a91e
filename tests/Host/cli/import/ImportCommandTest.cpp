#include "Host/cli/import/ImportCommand.h"

#include "Host/cli/check/CheckCommand.h"
#include "Platform/Files.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace Host::Cli {
namespace {

namespace Files = Platform::Files;

constexpr const char* HEADER = "P 0 My_Lead -12 a 0 a 5 a 0 a 0 a 0 a 0 a 0 a 0 a 0 a\n";
constexpr const char* KEY = "K 65 0 1 61 100 0 -1 -1 0 0 0 -1 -1 -1 0 1\n";  // "A" plays C#4 in zone 0.
constexpr const char* CONTROL = "C 3 4 2 VOL 100 0 127 -1 0 2 176 7 -1 -1 -1\n";
constexpr const char* LAYER = "L 0 0 0 1 0 127 0 127 -1 -1 5 +5 -1 - 1 1 24 12 1 3 2\n";

class ImportCommand : public testing::Test {
protected:
    std::string path(const std::string& name) const { return m_folder.file(name); }

    std::string write(const std::string& name, const std::string& content) const {
        EXPECT_TRUE(Files::replace(path(name), content));
        return path(name);
    }

    int import(const std::vector<std::string>& arguments) {
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        const int status = runImport(arguments);
        m_printed = testing::internal::GetCapturedStdout();
        m_complained = testing::internal::GetCapturedStderr();
        return status;
    }

    // The text of the file that another one is converted to.
    std::string convert(const std::string& kind, const std::string& from, const std::string& content,
                        const std::vector<std::string>& options = {}) {
        std::vector<std::string> arguments = {kind, write(from, content), path("to")};
        arguments.insert(arguments.end(), options.begin(), options.end());
        EXPECT_EQ(import(arguments), 0) << m_complained;
        EXPECT_EQ(m_printed, "wrote " + path("to") + "\n");
        EXPECT_EQ(m_complained, "");
        return Files::read(path("to")).value_or("");
    }

    void expectRefusal(const std::string& kind, const std::string& from, const std::string& why) {
        Files::remove(path("to"));
        EXPECT_EQ(import({kind, from, path("to")}), 2);
        EXPECT_EQ(m_printed, "");
        EXPECT_EQ(m_complained, from + ": " + why + "\n");
        EXPECT_FALSE(Files::size(path("to")));
    }

    TestSupport::TemporaryFolder m_folder;
    std::string m_printed;
    std::string m_complained;
};

bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

TEST_F(ImportCommand, ConvertsABank) {
    const std::string bank =
        convert("bank", "old.txt", std::string(HEADER) + KEY + "\n" + CONTROL + LAYER + "LT 140 2\n\nP 0 Second\n");
    EXPECT_TRUE(contains(bank, "<Program name=\"My Lead\" tempo=\"140\" tempoSource=\"2\">"));
    EXPECT_TRUE(contains(bank, "<MidiNoteOn zone=\"0\" note=\"C#4\" velocity=\"100\"/>"));
    EXPECT_TRUE(contains(bank, "<Control cell=\"3,4\""));
    EXPECT_TRUE(contains(bank, "channel=\"5\" transpose=\"+5\""));
    EXPECT_TRUE(contains(bank, "<Zone id=\"0\" transpose=\"-12\"/>"));
    EXPECT_TRUE(contains(bank, "<Program name=\"Second\" tempo=\"120\" tempoSource=\"-1\">"));
    EXPECT_TRUE(contains(bank, "<ComputerInput merge=\"false\" preset=\"000 - Default\">"));
}

TEST_F(ImportCommand, ConvertsAProgram) {
    const std::string program = convert("program", "old.txt", std::string(HEADER) + LAYER + "P 0 Second\n");
    EXPECT_TRUE(contains(program, "<ProgramFile>"));
    EXPECT_TRUE(contains(program, "name=\"My Lead\""));
    EXPECT_FALSE(contains(program, "Second"));
}

TEST_F(ImportCommand, ConvertsPresetsByTheirNames) {
    const std::string head = "version\n2\n";
    EXPECT_TRUE(contains(convert("preset", "key mine.txt", head + KEY), "<ComputerInput merge=\"false\">"));
    EXPECT_TRUE(contains(convert("preset", "control mine.txt", head + CONTROL), "<Control cell=\"3,4\""));
    EXPECT_TRUE(contains(convert("preset", "layer mine.txt", head + LAYER), "<Layer mute=\"false\""));
}

TEST_F(ImportCommand, PutsKeysOnTheBuiltInOnes) {
    const std::string program = convert("program", "old.txt", std::string(HEADER) + KEY);
    EXPECT_TRUE(contains(program, "<Key id=\"A\" global=\"true\">"));
    EXPECT_TRUE(contains(program, "<Key id=\"Q\" global=\"true\">"));
}

TEST_F(ImportCommand, PutsKeysOnThoseOfTheDataFolder) {
    ASSERT_TRUE(Files::createFolders(path("data/Computer Input Presets")));
    write("data/Computer Input Presets/000 - Default.pst",
          "<ComputerInput merge=\"false\"><Key id=\"F7\" global=\"true\"/></ComputerInput>");
    const std::string program = convert("program", "old.txt", std::string(HEADER) + KEY, {"--data", path("data")});
    EXPECT_TRUE(contains(program, "<Key id=\"A\""));
    EXPECT_TRUE(contains(program, "<Key id=\"F7\""));
    EXPECT_FALSE(contains(program, "<Key id=\"Q\""));
    const std::string without = convert("program", "old.txt", std::string(HEADER) + KEY, {"--data", path("no folder")});
    EXPECT_TRUE(contains(without, "<Key id=\"Q\""));
}

TEST_F(ImportCommand, KeepsTheNamesOfSequencePresets) {
    EXPECT_TRUE(contains(convert("program", "old.txt", std::string(HEADER) + LAYER),
                         "<SequenceSetting preset=\"004 - Oct 1 Down\" useNote=\"true\" useVelocity=\"true\""));
}

TEST_F(ImportCommand, WritesNothingElse) {
    ASSERT_TRUE(Files::createFolders(path("data")));
    convert("program", "old.txt", std::string(HEADER) + KEY, {"--data", path("data")});
    EXPECT_TRUE(Files::list(path("data"), "").empty());
    EXPECT_EQ(Files::list(m_folder.path(), ""), (std::vector<std::string>{"old.txt", "to"}));
}

TEST_F(ImportCommand, WritesWhatACheckLeavesAlone) {
    convert("bank", "old.txt", std::string(HEADER) + KEY + CONTROL + "L\n" + HEADER + KEY);
    testing::internal::CaptureStdout();
    EXPECT_EQ(runCheck({"--data", m_folder.path(), path("to")}), 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST_F(ImportCommand, TakesOldTextForWindowsText) {
    EXPECT_TRUE(contains(convert("program", "old.txt", "P 0 Zo\xEB_\x80\r\n"), "name=\"Zo\xC3\xAB \xE2\x82\xAC\""));
    EXPECT_TRUE(contains(convert("program", "old.txt", "P 0 Zo\xC3\xAB\n"), "name=\"Zo\xC3\xAB\""));
}

TEST_F(ImportCommand, RefusesWhatCannotBeRead) {
    for (const char* const kind : {"bank", "program", "preset"}) {
        expectRefusal(kind, path("missing"), "can't be read");
        expectRefusal(kind, m_folder.path(), "can't be read");
    }
}

TEST_F(ImportCommand, RefusesWhatIsNotOfVersion2) {
    const std::string why = "holds no version 2 data";
    for (const char* const kind : {"bank", "program"})
        for (const std::string& text : {std::string(), std::string("\n \n"), std::string("<Bank>\n</Bank>\n"),
                                        std::string("PK\x03\x04\0\0", 6), std::string("\x89PNG\r\n"), std::string(KEY),
                                        std::string("P\n"), std::string("Programs are made of keys.\n")})
            expectRefusal(kind, write("other", text), why);
    for (const char* const text : {"", "a\nb\n", "a\nb\nP 0 Name\n", "K 1\n"})
        expectRefusal("preset", write("key other.txt", text), why);
    expectRefusal("preset", write("control keys.txt", std::string("a\nb\n") + KEY), why);
}

TEST_F(ImportCommand, RefusesPresetsOfNoKind) {
    expectRefusal("preset", write("mine.txt", std::string("a\nb\n") + KEY),
                  "has no version 2 preset's name, which begins with the word key, control or layer");
}

TEST_F(ImportCommand, SaysWhatCannotBeWritten) {
    const std::string from = write("old.txt", HEADER);
    const std::string to = path("no folder/to");
    EXPECT_EQ(import({"bank", from, to}), 2);
    EXPECT_EQ(m_complained, to + ": can't be written\n");
    EXPECT_EQ(m_printed, "");
    EXPECT_EQ(import({"bank", from, m_folder.path()}), 2);
    EXPECT_EQ(m_complained, m_folder.path() + ": can't be written\n");
}

TEST_F(ImportCommand, WantsAKindAndTwoFiles) {
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{}, {"bank"}, {"bank", "a"}, {"bank", "a", "b", "c"}, {"song", "a", "b"}}) {
        EXPECT_EQ(import(arguments), 2);
        EXPECT_TRUE(m_complained.starts_with("mirel: import takes bank, program or preset, and two files\nusage: "));
    }
    EXPECT_EQ(import({"bank", "a", "b", "--data"}), 2);
    EXPECT_TRUE(m_complained.starts_with("mirel: --data takes a folder\n"));
    EXPECT_EQ(import({"bank", "a", "b", "--bogus"}), 2);
    EXPECT_TRUE(m_complained.starts_with("mirel: unknown option --bogus\n"));
    EXPECT_EQ(import({"--help"}), 0);
    EXPECT_TRUE(m_printed.starts_with("usage: mirel import"));
}

}
}
