#include "Host/console/CommandLine.h"

#include <gtest/gtest.h>

namespace {

using Host::Console::CommandLine;
using Strings = std::vector<std::string>;

CommandLine parse(const Strings& arguments) {
    std::string error;
    const auto line = CommandLine::parse(arguments, error);
    EXPECT_TRUE(line) << error;
    return line.value_or(CommandLine());
}

std::string errorOf(const Strings& arguments) {
    std::string error;
    EXPECT_FALSE(CommandLine::parse(arguments, error));
    return error;
}

TEST(ConsoleCommandLine, WithoutArgumentsTheDeskRunsAsItWasLeft) {
    const CommandLine line = parse({});
    EXPECT_EQ(line.action, CommandLine::Action::RUN);
    EXPECT_EQ(line.bank + line.program + line.dataFolder + line.recordFile, "");
    EXPECT_TRUE(line.files.empty());
}

TEST(ConsoleCommandLine, TakesEachValueAfterItsOptionOrAnEqualsSign) {
    for (const Strings& arguments :
         {Strings{"--bank", "a b.bnk", "--program", "3", "--data", "C:\\d", "--record", "r.mid"},
          Strings{"--bank=a b.bnk", "--program=3", "--data=C:\\d", "--record=r.mid"}}) {
        const CommandLine line = parse(arguments);
        EXPECT_EQ(line.bank, "a b.bnk");
        EXPECT_EQ(line.program, "3");
        EXPECT_EQ(line.dataFolder, "C:\\d");
        EXPECT_EQ(line.recordFile, "r.mid");
    }
}

TEST(ConsoleCommandLine, OpensBanksAndProgramsInTheirOrder) {
    EXPECT_EQ(parse({"b.PRG", "--program", "2", "a.bnk"}).files, (Strings{"b.PRG", "a.bnk"}));
}

TEST(ConsoleCommandLine, AfterTwoDashesAllAreFiles) {
    EXPECT_EQ(parse({"--", "--bank.bnk"}).files, Strings{"--bank.bnk"});
}

TEST(ConsoleCommandLine, HelpAndVersionWinOverWhatFollows) {
    EXPECT_EQ(parse({"--help", "--bogus"}).action, CommandLine::Action::SHOW_HELP);
    EXPECT_EQ(parse({"--version"}).action, CommandLine::Action::SHOW_VERSION);
}

TEST(ConsoleCommandLine, SaysWhatItCantUnderstand) {
    EXPECT_EQ(errorOf({"--bogus"}), "unknown option --bogus");
    EXPECT_EQ(errorOf({"--bogus=1"}), "unknown option --bogus");
    EXPECT_EQ(errorOf({"-b"}), "unknown option -b");
    EXPECT_EQ(errorOf({"--bank"}), "--bank needs a value");
    EXPECT_EQ(errorOf({"--data="}), "--data needs a value");
    EXPECT_EQ(errorOf({"notes.txt"}), "\"notes.txt\" is neither a bank (.bnk) nor a program (.prg)");
    EXPECT_EQ(errorOf({""}), "\"\" is neither a bank (.bnk) nor a program (.prg)");
}

TEST(ConsoleCommandLine, TheUsageNamesEveryOption) {
    const std::string usage = CommandLine::USAGE;
    for (const char* option : {"--bank", "--program", "--data", "--record", "--version", "--help"})
        EXPECT_NE(usage.find(std::string("  ") + option), std::string::npos) << option;
}

}
