#include "Host/cli/run/RunOptions.h"

#include <gtest/gtest.h>

namespace Host::Cli {
namespace {

TEST(RunOptionsTest, AllOptionsAreTakenOver) {
    std::string error;
    const auto options =
        RunOptions::parse({"--in",      "Keys",  "--in",    "2",         "--out",     "Synth", "--bank",   "a.bnk",
                           "--program", "Organ", "--clock", "internal",  "--play",    "s.mid", "--record", "r.mid",
                           "--data",    "d",     "--keys",  "--virtual", "--seconds", "1.5"},
                          error);
    ASSERT_TRUE(options) << error;
    EXPECT_EQ(options->inputs, (std::vector<std::string>{"Keys", "2"}));
    EXPECT_EQ(options->outputs, std::vector<std::string>{"Synth"});
    EXPECT_EQ(options->bank, "a.bnk");
    EXPECT_EQ(options->program, "Organ");
    EXPECT_EQ(options->clock, RunOptions::INTERNAL_CLOCK);
    EXPECT_EQ(options->song, "s.mid");
    EXPECT_EQ(options->recordFile, "r.mid");
    EXPECT_EQ(options->dataFolder, "d");
    EXPECT_TRUE(options->keys);
    EXPECT_TRUE(options->virtualPorts);
    EXPECT_EQ(options->length, std::chrono::milliseconds(1500));
}

TEST(RunOptionsTest, WithoutArgumentsTheDeskRunsUntilItIsEnded) {
    std::string error;
    const auto options = RunOptions::parse({}, error);
    ASSERT_TRUE(options);
    EXPECT_FALSE(options->length);
    EXPECT_FALSE(options->keys);
}

TEST(RunOptionsTest, BadArgumentsAreRefusedWithOneLine) {
    const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
        {{"--bank"}, "--bank needs a value"},
        {{"--in", ""}, "--in needs a value"},
        {{"song.mid"}, "run takes options only, not \"song.mid\""},
        {{"--loud", "1"}, "unknown option --loud"},
        {{"--seconds", "-1"}, "--seconds takes a number of seconds, not \"-1\""},
        {{"--seconds", "nan"}, "--seconds takes a number of seconds, not \"nan\""},
        {{"--seconds", "2x"}, "--seconds takes a number of seconds, not \"2x\""},
    };

    for (const auto& [arguments, message] : cases) {
        std::string error;
        EXPECT_FALSE(RunOptions::parse(arguments, error));
        EXPECT_EQ(error, message);
    }
}

}
}
