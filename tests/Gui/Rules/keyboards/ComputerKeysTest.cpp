#include "Gui/Rules/keyboards/ComputerKeys.h"

#include "Backend/input/Key.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Gui::ComputerKeys {
namespace {

struct KeyExtent {
    const char* name;
    int left;
    int right;
};

struct Line {
    int top;
    int bottom;
    std::vector<KeyExtent> keys;
};

const Line LINES[] = {
    {2,
     22,
     {
         {"Escape", 2, 19},
         {"F1", 42, 59},
         {"F2", 62, 79},
         {"F3", 82, 99},
         {"F4", 102, 119},
         {"F5", 132, 149},
         {"F6", 152, 169},
         {"F7", 172, 189},
         {"F8", 192, 209},
         {"F9", 222, 239},
         {"F10", 242, 259},
         {"F11", 262, 279},
         {"F12", 282, 299},
         {"Print Screen", 312, 329},
         {"Scroll Lock", 332, 349},
         {"Pause", 352, 369},
     }},
    {32,
     52,
     {
         {"Quote", 2, 19},       {"1", 22, 39},           {"2", 42, 59},          {"3", 62, 79},
         {"4", 82, 99},          {"5", 102, 119},         {"6", 122, 139},        {"7", 142, 159},
         {"8", 162, 179},        {"9", 182, 199},         {"0", 202, 219},        {"Minus", 222, 239},
         {"Equals", 242, 259},   {"Backspace", 262, 299}, {"Insert", 312, 329},   {"Home", 332, 349},
         {"Page Up", 352, 369},  {"Num Lock", 382, 399},  {"Numpad /", 402, 419}, {"Numpad *", 422, 439},
         {"Numpad -", 442, 459},
     }},
    {57,
     77,
     {
         {"Tab", 2, 33},
         {"Q", 36, 53},
         {"W", 56, 73},
         {"E", 76, 93},
         {"R", 96, 113},
         {"T", 116, 133},
         {"Y", 136, 153},
         {"U", 156, 173},
         {"I", 176, 193},
         {"O", 196, 213},
         {"P", 216, 233},
         {"Left Bracket", 236, 253},
         {"Right Bracket", 256, 273},
         {"Backslash", 276, 299},
         {"Delete", 312, 329},
         {"End", 332, 349},
         {"Page Down", 352, 369},
         {"Numpad 7", 382, 399},
         {"Numpad 8", 402, 419},
         {"Numpad 9", 422, 439},
         {"Numpad +", 442, 459},
     }},
    {82,
     102,
     {
         {"Caps Lock", 2, 33},
         {"A", 42, 59},
         {"S", 62, 79},
         {"D", 82, 99},
         {"F", 102, 119},
         {"G", 122, 139},
         {"H", 142, 159},
         {"J", 162, 179},
         {"K", 182, 199},
         {"L", 202, 219},
         {"Semicolon", 222, 239},
         {"Apostrophe", 242, 259},
         {"Enter", 262, 299},
         {"Numpad 4", 382, 399},
         {"Numpad 5", 402, 419},
         {"Numpad 6", 422, 439},
     }},
    {107,
     127,
     {
         {"Left Shift", 2, 47},
         {"Z", 50, 67},
         {"X", 70, 87},
         {"C", 90, 107},
         {"V", 110, 127},
         {"B", 130, 147},
         {"N", 150, 167},
         {"M", 170, 187},
         {"Comma", 190, 207},
         {"Period", 210, 227},
         {"Slash", 230, 247},
         {"Right Shift", 250, 299},
         {"Up", 332, 349},
         {"Numpad 1", 382, 399},
         {"Numpad 2", 402, 419},
         {"Numpad 3", 422, 439},
         {"Numpad Enter", 442, 459},
     }},
    {132,
     152,
     {
         {"Left Control", 2, 24},
         {"Left Windows", 27, 49},
         {"Left Alt", 52, 74},
         {"Space", 77, 199},
         {"Right Alt", 202, 224},
         {"Right Windows", 227, 249},
         {"Windows Key", 252, 274},
         {"Right Control", 277, 299},
         {"Left", 312, 329},
         {"Down", 332, 349},
         {"Right", 352, 369},
         {"Numpad 0", 382, 419},
         {"Numpad .", 422, 439},
     }},
};

// Two keys reach into the row below theirs.
int bottomOf(const Line& line, const std::string& name) {
    return name == "Numpad +" ? 102 : name == "Numpad Enter" ? 152 : line.bottom;
}

std::string nameAt(int x, int y) {
    const auto place = findKey(x, y);
    return place ? Key(getPlaces()[*place].code, false, false, false, false).getName() : "";
}

TEST(ComputerKeys, StandInRowsByTheirNames) {
    std::size_t index = 0;
    for (const Line& line : LINES)
        for (const KeyExtent& key : line.keys) {
            ASSERT_LT(index, KEYS);
            const KeyPlace& place = getPlaces()[index++];
            EXPECT_EQ(Key(place.code, false, false, false, false).getName(), key.name);
            EXPECT_EQ(place.rect, (Rect{key.left, line.top, key.right, bottomOf(line, key.name)})) << key.name;
        }
    EXPECT_EQ(index, KEYS);
}

TEST(ComputerKeys, AreFoundByTheirPixels) {
    for (const Line& line : LINES)
        for (const KeyExtent& key : line.keys) {
            EXPECT_EQ(nameAt(key.left, line.top), key.name);
            EXPECT_EQ(nameAt(key.right - 1, bottomOf(line, key.name) - 1), key.name);
            EXPECT_NE(nameAt(key.right, line.top), key.name);
            EXPECT_EQ(nameAt(key.left, line.top - 1), "") << key.name;
        }
    EXPECT_EQ(nameAt(450, 80), "Numpad +");  // Between the rows.
    EXPECT_EQ(nameAt(390, 80), "");
    EXPECT_EQ(nameAt(450, 129), "Numpad Enter");
    EXPECT_EQ(nameAt(-1, 5), "");
    EXPECT_EQ(nameAt(469, 154), "");
}

TEST(ComputerKeys, LieInThePictureAndNotInItsCutOut) {
    for (const KeyPlace& place : getPlaces()) {
        EXPECT_GE(place.rect.left, 0);
        EXPECT_LE(place.rect.right, WIDTH);
        EXPECT_LE(place.rect.bottom, HEIGHT);
        EXPECT_TRUE(place.rect.right <= CUT_OUT.left || place.rect.top >= CUT_OUT.bottom) << place.code;
    }
}

TEST(ComputerKeys, AreFoundByTheirCodes) {
    for (std::size_t i = 0; i < KEYS; ++i)
        EXPECT_EQ(findCode(getPlaces()[i].code), i);
    EXPECT_EQ(findCode(Key::ALT_KEY), std::nullopt);
    EXPECT_EQ(findCode(Key::NO_KEY), std::nullopt);
}

struct LabelCase {
    const char* name;
    const char* label;
};

TEST(ComputerKeys, HaveShortLabels) {
    const LabelCase cases[] = {
        {"Numpad 0", "0"},   {"Numpad 9", "9"}, {"Caps Lock", "CAP"}, {"Left Shift", "SHIFT"}, {"Backspace", "<-"},
        {"Numpad +", "+"},   {"Numpad -", "-"}, {"Numpad /", "/"},    {"Numpad .", "."},       {"Numpad *", "*"},
        {"Backslash", "\\"}, {"Up", "5"},       {"Left", "3"},        {"Down", "6"},           {"Right", "4"},
        {"A", "A"},          {"F12", "F12"},    {"Quote", "`"},       {"Tab", "TAB"},          {"Space", " "},
    };
    for (const auto& [name, label] : cases) {
        for (const KeyPlace& place : getPlaces()) {
            if (Key(place.code, false, false, false, false).getName() == name) {
                EXPECT_EQ(getLabel(place.code), label) << name;
            }
        }
    }
    for (const char* const name :
         {"Escape",    "Left Control", "Right Control", "Left Alt",     "Right Alt",   "Right Windows", "Left Windows",
          "Num Lock",  "Numpad Enter", "Scroll Lock",   "Print Screen", "Pause",       "Insert",        "Home",
          "Page Down", "Page Up",      "Enter",         "Right Shift",  "Windows Key", "Delete",        "End"}) {
        bool isFound = false;
        for (const KeyPlace& place : getPlaces())
            if (Key(place.code, false, false, false, false).getName() == name) {
                isFound = true;
                EXPECT_EQ(getLabel(place.code), "") << name;
            }
        EXPECT_TRUE(isFound) << name;
    }
}

TEST(ComputerKeys, HaveThreeFonts) {
    for (const KeyPlace& place : getPlaces()) {
        const std::string name = Key(place.code, false, false, false, false).getName();
        const bool isArrow = name == "Left" || name == "Right" || name == "Up" || name == "Down";
        const bool isFunctionKey = name.size() > 1 && name[0] == 'F';
        EXPECT_EQ(getLabelFont(place.code), isArrow         ? LabelFont::SYMBOL
                                            : isFunctionKey ? LabelFont::FUNCTION_KEY
                                                            : LabelFont::TEXT)
            << name;
    }
}

}
}
