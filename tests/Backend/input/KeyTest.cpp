#include "Backend/input/Key.h"

#include <gtest/gtest.h>

#include <set>
#include <unordered_set>
#include <vector>

namespace {

struct NamedCode {
    std::string name;
    int code;
};

// All names that give a code.
std::vector<NamedCode> names() {
    std::vector<NamedCode> rows = {
        {"Numpad *", 106},
        {"Numpad +", 107},
        {"Numpad -", 109},
        {"Numpad .", 110},
        {"Numpad /", 111},
        {"Numpad Enter", 226},
        {"Enter", 13},
        {"Tab", 9},
        {"Backspace", 8},
        {"Escape", 27},
        {"Space", 32},
        {"Pause", 19},
        {"Caps Lock", 20},
        {"Num Lock", 144},
        {"Scroll Lock", 145},
        {"Page Up", 33},
        {"Page Down", 34},
        {"End", 35},
        {"Home", 36},
        {"Left", 37},
        {"Up", 38},
        {"Right", 39},
        {"Down", 40},
        {"Insert", 45},
        {"Delete", 46},
        {"Shift", 16},
        {"Right Shift", 1},
        {"Control", 17},
        {"Right Control", 225},
        {"Alt", 2},
        {"Right Alt", 165},
        {"Windows Key", 93},
        {"Right Windows", 92},
        {"Print Screen", 5},
        {"Quote", 192},
        {"Minus", 189},
        {"Equals", 187},
        {"Left Bracket", 219},
        {"Right Bracket", 221},
        {"Backslash", 220},
        {"Semicolon", 186},
        {"Apostrophe", 222},
        {"Comma", 188},
        {"Period", 190},
        {"Slash", 191},
    };
    for (int code = 'A'; code <= 'Z'; ++code)
        rows.push_back({std::string(1, static_cast<char>(code)), code});
    for (int code = '0'; code <= '9'; ++code)
        rows.push_back({std::string(1, static_cast<char>(code)), code});
    for (int number = 1; number <= 12; ++number)
        rows.push_back({"F" + std::to_string(number), 111 + number});
    for (int number = 0; number <= 9; ++number)
        rows.push_back({"Numpad " + std::to_string(number), 96 + number});
    return rows;
}

Key key(const std::string& id) {
    return Key(std::string_view(id));
}

TEST(KeyTest, DefaultIsNoKey) {
    EXPECT_EQ(Key().getCode(), -1);
    EXPECT_EQ(Key().getModifierIndex(), 0);
    EXPECT_EQ(key("").getCode(), -1);
    EXPECT_EQ(key("").toXmlString(), "Unknown");
}

TEST(KeyTest, EachNameGivesItsCode) {
    EXPECT_EQ(names().size(), 103u);
    for (const NamedCode& row : names())
        EXPECT_EQ(key(row.name).getCode(), row.code) << row.name;
    for (const char* none : {"a", "f1", "F13", "F0", "Numpad", "Numpad 10", "Left Shift", "Left Control", "Left Alt",
                             "Left Windows", "Unknown", "enter", " A", "A "})
        EXPECT_EQ(key(none).getCode(), -1) << none;
}

TEST(KeyTest, EachCodeGivesItsName) {
    std::vector<std::string> expected(300, "Unknown");
    for (const NamedCode& row : names())
        expected[static_cast<std::size_t>(row.code)] = row.name;
    expected[16] = "Left Shift";
    expected[17] = "Left Control";
    expected[164] = "Left Alt";
    expected[91] = "Left Windows";
    expected[2] = "Unknown";
    for (int code = 0; code < 300; ++code)
        EXPECT_EQ(Key(code, false, false, false, false).getName(), expected[static_cast<std::size_t>(code)]) << code;
}

TEST(KeyTest, EachModifierStateIsWrittenAndReadBack) {
    for (int state = 0; state < Key::MODIFIER_STATES; ++state) {
        const Key written(226, state & 1, state & 2, state & 4, state & 8);
        EXPECT_EQ(written.getModifierIndex(), state);
        const Key read = key(written.toXmlString());
        EXPECT_EQ(read.getCode(), 226) << written.toXmlString();
        EXPECT_EQ(read.getModifierIndex(), state) << written.toXmlString();
    }
    EXPECT_EQ(Key(226, true, true, true, true).toXmlString(), "Shift Control Alt Win Numpad Enter");
    EXPECT_EQ(key("Control Left").toXmlString(), "Control Left");
    EXPECT_EQ(key("Shift F1").toXmlString(), "Shift F1");
}

TEST(KeyTest, ABareModifierIsAKey) {
    const Key shift = key("Shift");
    EXPECT_FALSE(shift.isShift());
    EXPECT_EQ(shift.getCode(), 16);
    EXPECT_EQ(shift.toXmlString(), "Left Shift");
    EXPECT_EQ(key(shift.toXmlString()).getCode(), -1);
    EXPECT_EQ(key("Shift Control").getCode(), 17);
    EXPECT_TRUE(key("Shift Control").isShift());
    EXPECT_FALSE(key("Shift Control").isControl());
}

TEST(KeyTest, PrefixesHaveTheirCaseAndOrder) {
    EXPECT_EQ(key("win F1").getCode(), -1);
    EXPECT_EQ(key("Win F1").getCode(), 112);
    const Key swapped = key("Control Shift A");
    EXPECT_TRUE(swapped.isControl());
    EXPECT_FALSE(swapped.isShift());
    EXPECT_EQ(swapped.getCode(), -1);
}

TEST(KeyTest, TheTwoEnterKeysDiffer) {
    EXPECT_EQ(key("Enter").getCode(), 13);
    EXPECT_EQ(key("Numpad Enter").getCode(), 226);
    EXPECT_NE(key("Enter"), key("Numpad Enter"));
}

TEST(KeyTest, TheLowByteAndTheModifiersDecideEqualityOrderAndHash) {
    EXPECT_EQ(Key(-1, false, false, false, false), Key(255, false, false, false, false));
    EXPECT_EQ(Key(65 + 256, true, false, false, false), Key(65, true, false, false, false));
    EXPECT_NE(key("A"), key("Shift A"));
    EXPECT_LT(key("Z"), key("Shift A"));
    EXPECT_LT(key("A"), key("B"));
    EXPECT_EQ(key("Shift Win B").getIdentity(), 9 << 8 | 66);
    const std::unordered_set<Key> keys = {key("A"), key("A"), key("Shift A")};
    EXPECT_EQ(keys.size(), 2u);
}

TEST(KeyTest, LabelsAreShort) {
    const NamedCode labels[] = {
        {"SHIFT", 16}, {"BACKSPACE", 8}, {"CONTROL", 17}, {"INSERT", 45}, {"RCTRL", 225},    {"HOME", 36},
        {"`", 192},    {"PAGEUP", 33},   {"-", 189},      {"DELETE", 46}, {"=", 187},        {"END", 35},
        {"[", 219},    {"PAGEDOWN", 34}, {"]", 221},      {"TAB", 9},     {";", 186},        {"BACKSLASH", 220},
        {"'", 222},    {"ENTER", 13},    {",", 188},      {" ", 32},      {".", 190},        {"*", 106},
        {"/", 191},    {"*", 111},       {"A", 65},       {"F12", 123},   {"Numpad +", 107}, {"Unknown", 7},
    };
    for (const NamedCode& row : labels)
        EXPECT_EQ(Key(row.code, true, false, false, false).getLabel(), row.name) << row.code;
}

// The combinations that do not reach the desk, as one condition per key.
bool isTaken(int code, bool s, bool c, bool a, bool w) {
    const auto between = [code](int first, int last) { return code >= first && code <= last; };
    const std::set<int> withWin = {32, 66, 76, 77, 80, 82, 84, 85, 112, 187};
    if (code == 1 || code == 5 || code == 91 || code == 92)
        return true;
    if (code == 16 || code == 17 || code == 225)
        return s || c || a || w;
    if (code == 164 || code == 165)
        return a;
    if (code == 9)
        return a || w;
    if (code == 13)
        return a && w;
    if (code == 19)
        return c || w;
    if (code == 27)
        return a || c;
    if (code == 46)
        return c && a;
    if (code == 48)
        return w || (s && c);
    if (between(96, 106) || code == 109 || code == 111)
        return s;
    if (code == 107)
        return s || w;
    if (code == 110)
        return s || (c && a);
    if (code == 144)
        return c || s;
    if (code == 145)
        return c && !(s && !w);
    if (code == 226)
        return (a && w) || (s && c && w);
    return w && (withWin.count(code) != 0 || between(36, 40) || between(49, 57) || between(68, 71));
}

TEST(KeyTest, SomeCombinationsAreNotAvailable) {
    for (int code = -1; code < 256; ++code)
        for (int state = 0; state < Key::MODIFIER_STATES; ++state) {
            const Key candidate(code, state & 1, state & 2, state & 4, state & 8);
            EXPECT_EQ(candidate.isAvailable(), !isTaken(code, state & 1, state & 2, state & 4, state & 8))
                << candidate.toXmlString();
        }
}

}
