#pragma once

#include <cstdint>
#include <string_view>

namespace Gui {

// [any] The decimal integer at the start of typed text, after white space and with an optional sign; what follows is
// ignored. 0 without a digit, and the nearest 32-bit number if it is out of range.
std::int32_t readTypedNumber(std::string_view text);

}
