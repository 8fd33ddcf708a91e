#include "Backend/input/KeyNames.h"

#include <algorithm>
#include <array>
#include <span>

namespace Backend::ComputerInput {

namespace {

struct KeyName {
    std::string_view name;
    std::int32_t code;
};

// For both directions, except for the entries below.
constexpr std::array<KeyName, 103> NAMES = {{
    {"A", 65},
    {"B", 66},
    {"C", 67},
    {"D", 68},
    {"E", 69},
    {"F", 70},
    {"G", 71},
    {"H", 72},
    {"I", 73},
    {"J", 74},
    {"K", 75},
    {"L", 76},
    {"M", 77},
    {"N", 78},
    {"O", 79},
    {"P", 80},
    {"Q", 81},
    {"R", 82},
    {"S", 83},
    {"T", 84},
    {"U", 85},
    {"V", 86},
    {"W", 87},
    {"X", 88},
    {"Y", 89},
    {"Z", 90},
    {"0", 48},
    {"1", 49},
    {"2", 50},
    {"3", 51},
    {"4", 52},
    {"5", 53},
    {"6", 54},
    {"7", 55},
    {"8", 56},
    {"9", 57},
    {"F1", 112},
    {"F2", 113},
    {"F3", 114},
    {"F4", 115},
    {"F5", 116},
    {"F6", 117},
    {"F7", 118},
    {"F8", 119},
    {"F9", 120},
    {"F10", 121},
    {"F11", 122},
    {"F12", 123},
    {"Numpad 0", 96},
    {"Numpad 1", 97},
    {"Numpad 2", 98},
    {"Numpad 3", 99},
    {"Numpad 4", 100},
    {"Numpad 5", 101},
    {"Numpad 6", 102},
    {"Numpad 7", 103},
    {"Numpad 8", 104},
    {"Numpad 9", 105},
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
}};

// Codes whose name differs from the one that gives them, or that no name gives.
constexpr std::array<KeyName, 5> NAMES_OF_CODES_ALONE = {{
    {"Left Shift", 16},
    {"Left Control", 17},
    {"Left Alt", 164},
    {"Left Windows", 91},
    {"Unknown", 2},
}};

constexpr std::array<KeyName, 26> LABELS = {{
    {"SHIFT", 16}, {"BACKSPACE", 8}, {"CONTROL", 17}, {"INSERT", 45}, {"RCTRL", 225}, {"HOME", 36},
    {"`", 192},    {"PAGEUP", 33},   {"-", 189},      {"DELETE", 46}, {"=", 187},     {"END", 35},
    {"[", 219},    {"PAGEDOWN", 34}, {"]", 221},      {"TAB", 9},     {";", 186},     {"BACKSLASH", 220},
    {"'", 222},    {"ENTER", 13},    {",", 188},      {" ", 32},      {".", 190},     {"*", 106},
    {"/", 191},    {"*", 111},
}};

constexpr std::string_view UNKNOWN = "Unknown";

const KeyName* findCode(std::span<const KeyName> rows, std::int32_t code) {
    const auto row = std::find_if(rows.begin(), rows.end(), [code](const KeyName& key) { return key.code == code; });
    return row == rows.end() ? nullptr : &*row;
}

}

std::int32_t keyCodeOfName(std::string_view name) {
    const auto row = std::find_if(NAMES.begin(), NAMES.end(), [name](const KeyName& key) { return key.name == name; });
    return row == NAMES.end() ? -1 : row->code;
}

std::string keyNameOfCode(std::int32_t code) {
    const KeyName* row = findCode(NAMES_OF_CODES_ALONE, code);
    if (!row)
        row = findCode(NAMES, code);
    return std::string(row ? row->name : UNKNOWN);
}

std::string keyLabelOfCode(std::int32_t code) {
    const KeyName* row = findCode(LABELS, code);
    return row ? std::string(row->name) : keyNameOfCode(code);
}

}
