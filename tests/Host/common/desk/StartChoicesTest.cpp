#include "Host/common/desk/StartChoices.h"
#include "Host/common/ports/PortList.h"

#include <gtest/gtest.h>

namespace {

using namespace Host;

TEST(StartChoices, FindAProgramByNameBeforeItsNumber) {
    const std::vector<std::string> names = {"Piano", "1", "Lead"};
    EXPECT_EQ(findProgram(names, "Lead"), 2);
    EXPECT_EQ(findProgram(names, "1"), 1);
    EXPECT_EQ(findProgram(names, "3"), 2);
}

TEST(StartChoices, FindNoMissingProgram) {
    const std::vector<std::string> names = {"Piano"};
    for (const char* wanted : {"", "0", "2", "-1", "piano", "1x", "99999999999999"})
        EXPECT_EQ(findProgram(names, wanted), -1) << wanted;
}

PortRow row(const char* name, bool enabled, bool available, int copy = 1) {
    PortSettings settings;
    settings.enabled = enabled;
    return {{name, copy}, settings, available, std::nullopt};
}

TEST(StartChoices, KeepTheUsersOutputEvenWhileItIsAbsent) {
    const std::vector<PortRow> rows = {row("A", true, true), row("Gone", true, false), row("Off", false, true)};
    for (int present : {0, 1, 2})
        EXPECT_EQ(findBetterOutput(rows, present), -1) << present;
}

TEST(StartChoices, TakeTheFirstOutputThatCanBeHeardInsteadOfNoneOrTheRecorder) {
    const std::vector<PortRow> rows = {row("Recorder", true, true, PortList::BUILT_IN), row("Off", false, true),
                                       row("Gone", true, false), row("Synth", true, true)};
    for (int present : {-1, 0, 4})
        EXPECT_EQ(findBetterOutput(rows, present), 3) << present;
}

TEST(StartChoices, HaveNoBetterOutputWithoutAny) {
    EXPECT_EQ(findBetterOutput({row("Recorder", true, true, PortList::BUILT_IN)}, 0), -1);
    EXPECT_EQ(findBetterOutput({}, -1), -1);
}

}
