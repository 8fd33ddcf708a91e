#include "Gui/Rules/texts/ProgramListText.h"

#include <gtest/gtest.h>

namespace Gui {
namespace {

using Lines = std::vector<std::string>;

TEST(ProgramListText, CountsFromOne) {
    EXPECT_EQ(describeProgram(0, "Piano"), "1 - Piano");
    EXPECT_EQ(describeProgram(127, ""), "128 - ");
}

TEST(ProgramListText, ListsABank) {
    EXPECT_EQ(describePrograms({"A", "B"}, 0, "A"), (Lines{"1 - A", "2 - B"}));
    EXPECT_EQ(describePrograms({}, 0, "A"), Lines{});
}

TEST(ProgramListText, TheCurrentProgramHasItsPresentName) {
    EXPECT_EQ(describePrograms({"A", "B"}, 1, "Zoë"), (Lines{"1 - A", "2 - Zoë"}));
    EXPECT_EQ(describePrograms({"A", "B"}, 2, "C"), (Lines{"1 - A", "2 - B"}));
    EXPECT_EQ(describePrograms({"A", "B"}, -1, "C"), (Lines{"1 - A", "2 - B"}));
}

}
}
