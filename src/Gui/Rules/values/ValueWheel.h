#pragma once

#include "Gui/Rules/values/ValueField.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Gui {

// [any] Notches of a wheel in the upper word of its message's wParam, away from the user above 0. Parts of a notch
// count for nothing.
constexpr int getWheelSteps(std::uintptr_t wParam) {
    return static_cast<std::int16_t>(wParam >> 16 & 0xffff) / 120;
}

// [any] What a field shows after so many steps of the wheel; large steps are those with Shift held. Nothing if the
// value would leave the limits, which then stays as it is.
std::optional<std::string> turnValue(std::string_view text, int steps, bool large, const ValueField& field);

}
