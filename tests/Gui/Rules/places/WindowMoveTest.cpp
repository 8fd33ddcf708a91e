#include "Gui/Rules/places/WindowMove.h"

#include <gtest/gtest.h>

#include <climits>

namespace Gui {
namespace {

struct Case {
    bool relative;
    std::int32_t value;
    std::uintptr_t packed;
};

constexpr Case CASES[] = {
    {false, 0, 0x00000000},  {true, 0, 0x00000001},        {false, 300, 0x012c0000},     {true, 300, 0x012c0001},
    {false, -1, 0x00010100}, {true, -100, 0x00640101},     {false, 65535, 0xffff0000u},  {false, 65536, 0x00000000},
    {true, -65537, 0x10101}, {false, INT_MIN, 0x00000100}, {true, INT_MAX, 0xffff0001u},
};

TEST(WindowMove, PacksFlagSignAndMagnitude) {
    for (const Case& row : CASES)
        EXPECT_EQ(packWindowMove({row.relative, row.value}), row.packed) << row.value;
}

TEST(WindowMove, ComesBackWithinSixteenBits) {
    for (const bool relative : {false, true})
        for (const std::int32_t value : {0, 1, -1, 5, -300, 65535, -65535})
            EXPECT_EQ(unpackWindowMove(packWindowMove({relative, value})), RelativeFixedValue(relative, value));
}

TEST(WindowMove, AnyRelativeFlagCounts) {
    EXPECT_TRUE(unpackWindowMove(0x00050080).isRelative());
    EXPECT_EQ(unpackWindowMove(0x00050080).getValue(), 5);
}

}
}
