#pragma once

#include <cstddef>
#include <string>

namespace Gui::DisplayText {

// What the display shows at most, in bytes; it always stays below it.
constexpr std::size_t CAPACITY = 30000;

// The lowest that the display gets, in pixels.
constexpr int MIN_HEIGHT = 25;

// [any] Whether some of the shown text has to go before this much is added.
constexpr bool isFull(std::size_t shown, std::size_t added) {
    return shown + added >= CAPACITY;
}

// [any] The last half of the text, in whole characters, or less if more would not fit with what is added.
std::string makeRoom(const std::string& shown, std::size_t added);

// [any] A height that someone asked for, or the lowest one.
constexpr int limitHeight(int height) {
    return height < MIN_HEIGHT ? MIN_HEIGHT : height;
}

}
