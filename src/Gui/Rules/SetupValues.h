#pragma once

#include <cstdint>
#include <string>

namespace Gui {

// [any] A velocity that somebody typed, in a signed byte; 0 for text without a number.
std::int8_t readVelocity(const std::string& text);

// [any] How many pixels of the mouse make one step. It divides, so it is at least 1, whatever was typed.
int readMouseSensitivity(const std::string& text);

}
