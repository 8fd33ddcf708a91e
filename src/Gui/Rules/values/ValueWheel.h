#pragma once

#include "Gui/Rules/values/ValueField.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Gui {

// [any] The notches of a wheel turn, from its message's wParam; positive is away from the user. Partial notches are
// ignored.
constexpr int getWheelSteps(std::uintptr_t wParam) {
    return static_cast<std::int16_t>(wParam >> 16 & 0xffff) / 120;
}

// [any] What a field shows after this many steps of the wheel; large steps are those with Shift held. Nothing if the
// value would leave the limits; it then stays as it is.
std::optional<std::string> turnValue(std::string_view text, int steps, bool large, const ValueField& field);

}
