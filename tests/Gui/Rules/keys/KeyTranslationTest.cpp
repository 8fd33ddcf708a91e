#include "Gui/Rules/keys/KeyTranslation.h"

#include <gtest/gtest.h>

namespace {

using namespace Gui;

struct CodeRow {
    std::uint32_t virtualKey;
    bool isExtended;
    std::int32_t code;
};

TEST(KeyTranslation, DistinguishesTheTwoKeysOfOneVirtualKey) {
    constexpr CodeRow ROWS[] = {
        {17, false, 17}, {17, true, 225}, {18, false, 164}, {18, true, 165}, {13, false, 13}, {13, true, 226},
    };
    for (const CodeRow& row : ROWS)
        EXPECT_EQ(translateKeyCode(row.virtualKey, row.isExtended), row.code) << row.virtualKey << row.isExtended;
}

TEST(KeyTranslation, LeavesAllOtherKeysAsTheyAre) {
    for (std::uint32_t key = 0; key < 256; ++key) {
        if (key == 13 || key == 17 || key == 18)
            continue;
        EXPECT_EQ(translateKeyCode(key, false), static_cast<std::int32_t>(key));
        EXPECT_EQ(translateKeyCode(key, true), static_cast<std::int32_t>(key));
    }
}

TEST(KeyTranslation, ReadsTheBitsOfTheMessage) {
    EXPECT_TRUE(isExtendedKey(0x01000000));
    EXPECT_FALSE(isExtendedKey(0x40ff0001));
    EXPECT_FALSE(isExtendedKey(0x02000000));
    EXPECT_TRUE(wasKeyDown(0x40000000));
    EXPECT_FALSE(wasKeyDown(0x011e0001));
    EXPECT_FALSE(wasKeyDown(0x80000000));
    EXPECT_TRUE(wasKeyDown(static_cast<std::int32_t>(0xc0000001)));
}

TEST(KeyTranslation, KeepsTheModifiersOfAPlainKey) {
    for (int state = 0; state < Key::MODIFIER_STATES; ++state) {
        const KeyModifiers modifiers{(state & 1) != 0, (state & 2) != 0, (state & 4) != 0, (state & 8) != 0};
        const Key pressed = makePressedKey(65, false, modifiers);
        EXPECT_EQ(pressed.getCode(), 65);
        EXPECT_EQ(pressed.getModifierIndex(), state);
        EXPECT_EQ(makeReleasedKey(65, false, modifiers), pressed);
    }
}

struct ModifierRow {
    std::uint32_t virtualKey;
    bool isExtended;
    int pressedModifiers;  // Of all four.
};

TEST(KeyTranslation, AModifierDoesNotModifyItselfWhenItGoesDown) {
    constexpr ModifierRow ROWS[] = {
        {17, false, 1 + 4 + 8}, {17, true, 1 + 4 + 8},  {18, false, 1 + 2 + 8},
        {18, true, 1 + 2 + 8},  {16, false, 2 + 4 + 8}, {91, false, 15},
    };
    constexpr KeyModifiers ALL{true, true, true, true};
    for (const ModifierRow& row : ROWS) {
        EXPECT_EQ(makePressedKey(row.virtualKey, row.isExtended, ALL).getModifierIndex(), row.pressedModifiers)
            << row.virtualKey;
        EXPECT_EQ(makeReleasedKey(row.virtualKey, row.isExtended, ALL).getModifierIndex(), 15) << row.virtualKey;
    }
}

TEST(KeyTranslation, OnlyShiftAndControlKeysMayBeDownBesideAShift) {
    for (std::size_t key = 0; key < 256; ++key) {
        KeyboardState state{};
        state[16] = 0x80;
        state[key] = 0x81;
        const bool isAllowed = key == 16 || key == 17 || (key >= 160 && key <= 163);
        EXPECT_EQ(isAnotherKeyThanShiftDown(state), !isAllowed) << key;
    }
}

TEST(KeyTranslation, AKeyThatIsToggledOnlyDoesNotCountAsDown) {
    KeyboardState state{};
    state.fill(0x7f);
    EXPECT_FALSE(isAnotherKeyThanShiftDown(state));
}

}
