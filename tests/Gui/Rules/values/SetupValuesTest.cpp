#include "Gui/Rules/values/SetupValues.h"

#include <gtest/gtest.h>

namespace Gui {
namespace {

TEST(SetupValues, VelocityIsASignedByte) {
    EXPECT_EQ(readVelocity("100"), 100);
    EXPECT_EQ(readVelocity("127"), 127);
    EXPECT_EQ(readVelocity("0"), 0);
    EXPECT_EQ(readVelocity(""), 0);
    EXPECT_EQ(readVelocity("200"), -56);
    EXPECT_EQ(readVelocity("300"), 44);
}

TEST(SetupValues, AChannelIsOneOfSixteen) {
    EXPECT_EQ(limitChannel(0), 0);
    EXPECT_EQ(limitChannel(15), 15);
    EXPECT_EQ(limitChannel(16), 0);
    EXPECT_EQ(limitChannel(-1), 0);
}

TEST(SetupValues, MouseSensitivityCanDivide) {
    EXPECT_EQ(readMouseSensitivity("4"), 4);
    EXPECT_EQ(readMouseSensitivity("1"), 1);
    EXPECT_EQ(readMouseSensitivity("0"), 1);
    EXPECT_EQ(readMouseSensitivity("-3"), 1);
    EXPECT_EQ(readMouseSensitivity(""), 1);
}

}
}
