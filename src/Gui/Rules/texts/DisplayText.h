#pragma once

#include <cstddef>
#include <string>

namespace Gui::DisplayText {

// The text in the display is always shorter than this, in bytes.
constexpr std::size_t CAPACITY = 30000;

// The minimum height of the display, in pixels.
constexpr int MIN_HEIGHT = 25;

// [any] Whether some of the shown text must go before this much can be added.
constexpr bool isFull(std::size_t shown, std::size_t added) {
    return shown + added >= CAPACITY;
}

// [any] The last half of the text in whole characters, or less if more would not leave room for the addition.
std::string makeRoom(const std::string& shown, std::size_t added);

// [any] The requested height, or the minimum if that is larger.
constexpr int limitHeight(int height) {
    return height < MIN_HEIGHT ? MIN_HEIGHT : height;
}

}
