#pragma once

#include <cstdint>
#include <string_view>

namespace Gui {

// [any] The decimal integer at the start of what somebody typed, after white space and with an optional sign; what
// follows it is not looked at. 0 without a digit, and the nearest number of 32 bits for one that needs more.
std::int32_t readTypedNumber(std::string_view text);

}
