#include "Host/cli/check/CheckCommand.h"

#include "Backend/core/files/DefaultXml.h"
#include "Platform/Files.h"
#include "Platform/SystemPath.h"
#include "tests/Host/cli/DeskFiles.h"
#include "tests/support/ProjectFolder.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace Host::Cli {
namespace {

namespace Files = Platform::Files;

constexpr const char* FINE = "<Layers merge=\"false\"/>";
constexpr const char* ODD = "<Layers/>";

class CheckCommand : public testing::Test {
protected:
    std::string path(const std::string& name) const { return m_folder.file(name); }

    std::string write(const std::string& name, const std::string& content) const {
        EXPECT_TRUE(Files::replace(path(name), content));
        return path(name);
    }

    int check(const std::vector<std::string>& arguments) {
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        const int status = runCheck(arguments);
        m_printed = testing::internal::GetCapturedStdout();
        m_complained = testing::internal::GetCapturedStderr();
        return status;
    }

    void expectSilence(const std::vector<std::string>& arguments) {
        EXPECT_EQ(check(arguments), 0);
        EXPECT_EQ(m_printed + m_complained, "");
    }

    void expectFailure(const std::string& file, const std::string& why) {
        EXPECT_EQ(check({file}), 2);
        EXPECT_EQ(m_printed, "");
        EXPECT_EQ(m_complained, file + ": " + why + "\n");
    }

    TestSupport::TemporaryFolder m_folder;
    std::string m_printed;
    std::string m_complained;
};

TEST_F(CheckCommand, SaysNothingAboutGoodFiles) {
    expectSilence({write("a.pst", FINE), write("b.seq", "<Sequence/>")});
}

TEST_F(CheckCommand, SaysWhereAndWhat) {
    const std::string file = write("a.pst", std::string("<?xml version=\"1.0\"?>\n") + ODD);
    EXPECT_EQ(check({file}), 1);
    EXPECT_EQ(m_printed, file + ":2: Layers lacks merge, so \"false\" is used\n");
    EXPECT_EQ(m_complained, "");
}

TEST_F(CheckCommand, GoesByContentNotByName) {
    expectSilence({write("a.seq", FINE)});
}

TEST_F(CheckCommand, EndsWithTheWorstStatus) {
    const std::string fine = write("fine.pst", FINE);
    const std::string odd = write("odd.pst", ODD);
    EXPECT_EQ(check({odd, fine}), 1);
    EXPECT_EQ(check({odd, path("none"), fine}), 2);
    EXPECT_EQ(m_complained, path("none") + ": can't be read\n");
    EXPECT_TRUE(m_printed.starts_with(odd + ":1: ")) << m_printed;
}

TEST_F(CheckCommand, RefusesOtherFiles) {
    expectFailure(path("missing"), "can't be read");
    expectFailure(m_folder.path(), "can't be read");
    expectFailure(write("empty", ""), "is not well-formed XML");
    expectFailure(write("binary", std::string("\0\1\2\xFF", 4)), "is not well-formed XML");
    expectFailure(write("page", "<html/>"), "is not a program, bank, preset or sequence but an element \"html\"");
    write("huge", "");
    std::filesystem::resize_file(*Platform::systemPath(path("huge")), Files::MAX_SIZE + 1);
    expectFailure(path("huge"), "is larger than 64 MiB");
}

TEST_F(CheckCommand, RefusesEveryPartOfAFile) {
    const std::string whole = "<Zones merge=\"false\"><Zone id=\"1\" transpose=\"2\"/></Zones>";
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_EQ(check({write("part", whole.substr(0, length))}), 2) << length;
    expectSilence({write("part", whole)});
}

TEST_F(CheckCommand, TakesAsLongAsAFileIs) {
    std::string keys = "<ComputerInput merge=\"false\">\n";
    for (int i = 0; i < 20000; ++i)
        keys += "<Key id=\"Q\" global=\"true\"/>\n";
    EXPECT_EQ(check({write("many", keys + "</ComputerInput>")}), 1);
    EXPECT_EQ(std::count(m_printed.begin(), m_printed.end(), '\n'), 19999);
}

TEST_F(CheckCommand, WantsFiles) {
    EXPECT_EQ(check({}), 2);
    EXPECT_TRUE(m_complained.starts_with("mirel: check takes files\nusage: mirel check"));
    EXPECT_EQ(check({"--data"}), 2);
    EXPECT_TRUE(m_complained.starts_with("mirel: --data takes a folder\n"));
    EXPECT_EQ(check({"--bogus", "x"}), 2);
    EXPECT_TRUE(m_complained.starts_with("mirel: unknown option --bogus\n"));
    EXPECT_EQ(check({"--help"}), 0);
    EXPECT_TRUE(m_printed.starts_with("usage: mirel check"));
}

TEST_F(CheckCommand, FindsPresetsBesideTheFileAndAboveIt) {
    const std::string content =
        "<ComputerInput merge=\"false\"><Key id=\"Q\" global=\"true\"><Function keepSending=\"false\"><Down>"
        "<LoadLayerPreset preset=\"Odd One\"/></Down></Function></Key></ComputerInput>";
    ASSERT_TRUE(Files::createFolders(path("deep")));

    const std::string beside = write("a.pst", content);
    const std::string below = write("deep/a.pst", content);
    EXPECT_EQ(check({beside, below}), 1);
    EXPECT_EQ(m_printed, beside + ":1: there is no layer preset \"Odd One\"\n" + below +
                             ":1: there is no layer preset \"Odd One\"\n");

    for (const char* const place : {"Default/Layer Presets", "Layer Presets"}) {
        ASSERT_TRUE(Files::createFolders(path(place)));
        const std::string preset = write(std::string(place) + "/Odd One.pst", FINE);
        expectSilence({beside, below});
        EXPECT_EQ(check({"--data", path("elsewhere"), beside}), 1);
        EXPECT_TRUE(Files::remove(preset));
    }
}

TEST_F(CheckCommand, SaysNothingAboutWhatComesWithTheDesk) {
    int count = 0;
    for (const auto& entry :
         std::filesystem::recursive_directory_iterator(*Platform::systemPath(TestSupport::projectFile("data")))) {
        const std::string extension = entry.path().extension().string();
        if (extension != ".pst" && extension != ".seq" && extension != ".bnk" && extension != ".prg")
            continue;
        expectSilence({Platform::utf8Path(entry.path())});
        ++count;
    }
    EXPECT_GT(count, 150);
    expectSilence({write("keys.pst", Backend::DEFAULT_COMPUTER_INPUT_XML)});
    expectSilence({write("controls.pst", Backend::DEFAULT_CONTROLS_XML)});
}

// Every file that a desk writes.
TEST_F(CheckCommand, SaysNothingAboutWhatTheDeskWrites) {
    write("bank.bnk", "<Bank>\n</Bank>\n");
    write("full.prg", TestSupport::fullProgram("ProgramFile"));
    const std::string bank = "\"" + path("bank.bnk") + "\"";
    const std::string program = "\"" + path("program.prg") + "\"";
    const std::string printed = TestSupport::runDesk(
        m_folder.path(), "desk\nbank " + bank + "\nbank-size 3\nbank-size 2\nbank-size 4\nselect 1\nprogram \"" +
                             path("full.prg") +
                             "\"\nprogram-name \"R & B <'\\>\"\nsave 1\nselect 2\nsave 2\nselect 1\nsave-program " +
                             program + "\nsave-bank \"" + path("other.bnk") +
                             "\"\n"
                             "preset save keys Keys\npreset save keys SomeKeys Q \"Shift W\" Escape\n"
                             "preset save controls Faders\npreset save controls OneFader 1,2\n"
                             "preset save layers Layers\npreset save layers OneLayer 2\n"
                             "sequence add Steps \"0 V10,-|12,7 L20\"\nsequence add Nothing \"\"\n"
                             "preset load keys Keys\nsave 3\nprint program\n");

    for (const char* const file :
         {"bank.bnk", "other.bnk", "program.prg", "Computer Input Presets/Keys.pst",
          "Computer Input Presets/SomeKeys.pst", "Control Presets/Faders.pst", "Control Presets/OneFader.pst",
          "Layer Presets/Layers.pst", "Layer Presets/OneLayer.pst", "Sequences/Steps.seq", "Sequences/Nothing.seq"}) {
        SCOPED_TRACE(file);
        expectSilence({"--data", m_folder.path(), path(file)});
    }

    EXPECT_NE(printed.find("<MirelProgramFile>"), std::string::npos);
    expectSilence({"--data", m_folder.path(), write("printed.prg", printed)});
    // What is saved last is in the bank that was saved to, and names the preset of its keys.
    EXPECT_NE(Files::read(path("other.bnk")).value_or("").find("preset=\"Keys\""), std::string::npos);
    EXPECT_EQ(check({"--data", path("elsewhere"), path("other.bnk")}), 1);
    EXPECT_NE(m_printed.find("there is no computer input preset \"Keys\""), std::string::npos);
}

}
}
