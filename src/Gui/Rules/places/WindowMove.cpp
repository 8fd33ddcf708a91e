#include "Gui/Rules/places/WindowMove.h"

namespace Gui {

namespace {

constexpr std::uint32_t RELATIVE_BITS = 0xff;
constexpr std::uint32_t NEGATIVE_BIT = 0x100;
constexpr int MAGNITUDE_SHIFT = 16;
constexpr std::uint32_t MAGNITUDE_BITS = 0xffff;

}

std::uintptr_t packWindowMove(const RelativeFixedValue& value) {
    const bool isNegative = value.getValue() < 0;
    const auto bits = static_cast<std::uint32_t>(value.getValue());
    const std::uint32_t magnitude = isNegative ? 0 - bits : bits;
    return (value.isRelative() ? 1u : 0u) | (isNegative ? NEGATIVE_BIT : 0u) |
           (magnitude & MAGNITUDE_BITS) << MAGNITUDE_SHIFT;
}

RelativeFixedValue unpackWindowMove(std::uintptr_t packed) {
    const auto magnitude = static_cast<std::int32_t>(packed >> MAGNITUDE_SHIFT & MAGNITUDE_BITS);
    return {(packed & RELATIVE_BITS) != 0, (packed & NEGATIVE_BIT) != 0 ? -magnitude : magnitude};
}

}
