#include "Gui/Rules/keyboards/ComputerKeys.h"

#include "Backend/input/Key.h"
#include "Gui/Rules/keyboards/RectContains.h"

#include <algorithm>
#include <string_view>

namespace Gui::ComputerKeys {

namespace {

// The rectangles as left, top, right, bottom.
constexpr std::array<KeyPlace, KEYS> PLACES = {{
    // Escape and the functions.
    {27, {2, 2, 19, 22}},
    {112, {42, 2, 59, 22}},
    {113, {62, 2, 79, 22}},
    {114, {82, 2, 99, 22}},
    {115, {102, 2, 119, 22}},
    {116, {132, 2, 149, 22}},
    {117, {152, 2, 169, 22}},
    {118, {172, 2, 189, 22}},
    {119, {192, 2, 209, 22}},
    {120, {222, 2, 239, 22}},
    {121, {242, 2, 259, 22}},
    {122, {262, 2, 279, 22}},
    {123, {282, 2, 299, 22}},
    {5, {312, 2, 329, 22}},
    {145, {332, 2, 349, 22}},
    {19, {352, 2, 369, 22}},
    // The digits.
    {192, {2, 32, 19, 52}},
    {49, {22, 32, 39, 52}},
    {50, {42, 32, 59, 52}},
    {51, {62, 32, 79, 52}},
    {52, {82, 32, 99, 52}},
    {53, {102, 32, 119, 52}},
    {54, {122, 32, 139, 52}},
    {55, {142, 32, 159, 52}},
    {56, {162, 32, 179, 52}},
    {57, {182, 32, 199, 52}},
    {48, {202, 32, 219, 52}},
    {189, {222, 32, 239, 52}},
    {187, {242, 32, 259, 52}},
    {8, {262, 32, 299, 52}},
    {45, {312, 32, 329, 52}},
    {36, {332, 32, 349, 52}},
    {33, {352, 32, 369, 52}},
    {144, {382, 32, 399, 52}},
    {111, {402, 32, 419, 52}},
    {106, {422, 32, 439, 52}},
    {109, {442, 32, 459, 52}},
    // Q to P.
    {9, {2, 57, 33, 77}},
    {81, {36, 57, 53, 77}},
    {87, {56, 57, 73, 77}},
    {69, {76, 57, 93, 77}},
    {82, {96, 57, 113, 77}},
    {84, {116, 57, 133, 77}},
    {89, {136, 57, 153, 77}},
    {85, {156, 57, 173, 77}},
    {73, {176, 57, 193, 77}},
    {79, {196, 57, 213, 77}},
    {80, {216, 57, 233, 77}},
    {219, {236, 57, 253, 77}},
    {221, {256, 57, 273, 77}},
    {220, {276, 57, 299, 77}},
    {46, {312, 57, 329, 77}},
    {35, {332, 57, 349, 77}},
    {34, {352, 57, 369, 77}},
    {103, {382, 57, 399, 77}},
    {104, {402, 57, 419, 77}},
    {105, {422, 57, 439, 77}},
    {107, {442, 57, 459, 102}},
    // A to L.
    {20, {2, 82, 33, 102}},
    {65, {42, 82, 59, 102}},
    {83, {62, 82, 79, 102}},
    {68, {82, 82, 99, 102}},
    {70, {102, 82, 119, 102}},
    {71, {122, 82, 139, 102}},
    {72, {142, 82, 159, 102}},
    {74, {162, 82, 179, 102}},
    {75, {182, 82, 199, 102}},
    {76, {202, 82, 219, 102}},
    {186, {222, 82, 239, 102}},
    {222, {242, 82, 259, 102}},
    {13, {262, 82, 299, 102}},
    {100, {382, 82, 399, 102}},
    {101, {402, 82, 419, 102}},
    {102, {422, 82, 439, 102}},
    // Z to M.
    {16, {2, 107, 47, 127}},
    {90, {50, 107, 67, 127}},
    {88, {70, 107, 87, 127}},
    {67, {90, 107, 107, 127}},
    {86, {110, 107, 127, 127}},
    {66, {130, 107, 147, 127}},
    {78, {150, 107, 167, 127}},
    {77, {170, 107, 187, 127}},
    {188, {190, 107, 207, 127}},
    {190, {210, 107, 227, 127}},
    {191, {230, 107, 247, 127}},
    {1, {250, 107, 299, 127}},
    {38, {332, 107, 349, 127}},
    {97, {382, 107, 399, 127}},
    {98, {402, 107, 419, 127}},
    {99, {422, 107, 439, 127}},
    {226, {442, 107, 459, 152}},
    // The space bar.
    {17, {2, 132, 24, 152}},
    {91, {27, 132, 49, 152}},
    {164, {52, 132, 74, 152}},
    {32, {77, 132, 199, 152}},
    {165, {202, 132, 224, 152}},
    {92, {227, 132, 249, 152}},
    {93, {252, 132, 274, 152}},
    {225, {277, 132, 299, 152}},
    {37, {312, 132, 329, 152}},
    {40, {332, 132, 349, 152}},
    {39, {352, 132, 369, 152}},
    {96, {382, 132, 419, 152}},
    {110, {422, 132, 439, 152}},
}};

struct LabelRow {
    std::int32_t code;
    std::string_view label;
};

// Replaces the key's own label.
constexpr LabelRow LABELS[] = {
    {20, "CAP"}, {16, "SHIFT"}, {8, "<-"}, {107, "+"}, {109, "-"}, {111, "/"},
    {110, "."},  {220, "\\"},   {38, "5"}, {37, "3"},  {40, "6"},  {39, "4"},
};

// Escape, the modifiers, and keys whose label would need more room than they have.
constexpr std::int32_t BLANK[] = {27, 17, 225, 164, 165, 92, 91, 144, 226, 145, 5,
                                  19, 45, 36,  34,  33,  13, 1,  93,  46,  35};

constexpr std::int32_t FIRST_NUMPAD_DIGIT = 96;
constexpr std::int32_t LAST_NUMPAD_DIGIT = 105;

std::optional<std::size_t> toIndex(const KeyPlace* place) {
    if (place == PLACES.data() + PLACES.size())
        return std::nullopt;
    return static_cast<std::size_t>(place - PLACES.data());
}

}

const std::array<KeyPlace, KEYS>& getPlaces() {
    return PLACES;
}

std::optional<std::size_t> findKey(int x, int y) {
    return toIndex(std::find_if(PLACES.data(), PLACES.data() + PLACES.size(),
                                [x, y](const KeyPlace& place) { return contains(place.rect, x, y); }));
}

std::optional<std::size_t> findCode(std::int32_t code) {
    return toIndex(std::find_if(PLACES.data(), PLACES.data() + PLACES.size(),
                                [code](const KeyPlace& place) { return place.code == code; }));
}

std::string getLabel(std::int32_t code) {
    if (code >= FIRST_NUMPAD_DIGIT && code <= LAST_NUMPAD_DIGIT)
        return std::to_string(code - FIRST_NUMPAD_DIGIT);
    if (std::find(std::begin(BLANK), std::end(BLANK), code) != std::end(BLANK))
        return {};
    for (const LabelRow& row : LABELS)
        if (row.code == code)
            return std::string(row.label);
    return Key(code, false, false, false, false).getLabel();
}

LabelFont getLabelFont(std::int32_t code) {
    constexpr std::int32_t LEFT = 37;
    constexpr std::int32_t DOWN = 40;
    constexpr std::int32_t F1 = 112;
    constexpr std::int32_t F12 = 123;
    if (code >= LEFT && code <= DOWN)
        return LabelFont::SYMBOL;
    return code >= F1 && code <= F12 ? LabelFont::FUNCTION_KEY : LabelFont::TEXT;
}

}
