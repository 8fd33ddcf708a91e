#pragma once

#include "Backend/functions/values/RelativeFixedValue.h"

#include <cstdint>

namespace Gui {

// [any] A move of the host's window, packed into one word of a message: bits 0 to 7 are 1 for an amount to move by and
// 0 for a place on the screen, bit 8 is set for a negative value, bits 16 to 31 hold its magnitude, cut to 16 bits.
std::uintptr_t packWindowMove(const RelativeFixedValue& value);

// [any] The reverse. Other bits are ignored.
RelativeFixedValue unpackWindowMove(std::uintptr_t packed);

}
