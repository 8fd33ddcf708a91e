#pragma once

#include "Backend/functions/values/RelativeFixedValue.h"

#include <cstdint>

namespace Gui {

// [any] How a move of the host's window fits one word of a message: bits 0 to 7 are 1 for an amount to move by and 0
// for a place on the screen, bit 8 tells that the value is negative, bits 16 to 31 hold its magnitude, cut to 16 bits.
std::uintptr_t packWindowMove(const RelativeFixedValue& value);

// [any] The opposite. Other bits are ignored.
RelativeFixedValue unpackWindowMove(std::uintptr_t packed);

}
