// Where the keys are in the picture of the computer keyboard, in pixels of its client area.
#pragma once

#include "Backend/core/settings/Rect.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace Gui::ComputerKeys {

inline constexpr int WIDTH = 470;
inline constexpr int HEIGHT = 155;

// The part of the picture above the number pad, which doesn't belong to it.
inline constexpr Rect CUT_OUT = {380, 0, 470, 20};

struct KeyPlace {
    std::int32_t code;  // As in Key.
    Rect rect;
};

inline constexpr std::size_t KEYS = 104;

// All keys, row by row from the top left. Ranges follow this order.
const std::array<KeyPlace, KEYS>& getPlaces();

// The key at a point, as its place in the table; nothing outside the keys.
std::optional<std::size_t> findKey(int x, int y);

// The place of a key in the table by its code; nothing for a code that isn't in the picture.
std::optional<std::size_t> findCode(std::int32_t code);

// The text on the key: a short word, a sign of the symbol font on the arrows, or nothing.
std::string getLabel(std::int32_t code);

enum class LabelFont { TEXT, FUNCTION_KEY, SYMBOL };

LabelFont getLabelFont(std::int32_t code);

}
