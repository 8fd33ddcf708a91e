// What the system's key messages mean to the desk.
#pragma once

#include "Backend/input/Key.h"

#include <array>
#include <cstdint>

namespace Gui {

// The system's virtual-key codes that matter to the desk.
namespace VirtualKeys {
constexpr std::uint32_t ENTER = 13;
constexpr std::uint32_t SHIFT = 16;
constexpr std::uint32_t CONTROL = 17;
constexpr std::uint32_t ALT = 18;
constexpr std::uint32_t LEFT_WIN = 91;
constexpr std::uint32_t RIGHT_WIN = 92;
constexpr std::uint32_t LEFT_SHIFT = 160;
constexpr std::uint32_t RIGHT_CONTROL = 163;
constexpr std::uint32_t LEFT_ALT = 164;
constexpr std::uint32_t RIGHT_ALT = 165;
}

// Which modifier keys are down.
struct KeyModifiers {
    bool shift = false;
    bool control = false;
    bool alt = false;
    bool win = false;
};

// The system's table of all keys; the top bit of an entry is set while the key is down.
using KeyboardState = std::array<std::uint8_t, 256>;

// [any] From the second word of a key message: whether the key is the right or the outer one of two, and whether it was
// down before.
constexpr bool isExtendedKey(std::intptr_t lParam) {
    return (lParam >> 24 & 1) != 0;
}
constexpr bool wasKeyDown(std::intptr_t lParam) {
    return (lParam >> 30 & 1) != 0;
}

// [any] The code of Key for a virtual key, which by itself doesn't distinguish the two Enter, Control and Alt keys.
std::int32_t translateKeyCode(std::uint32_t virtualKey, bool isExtended);

// [any] A key as it goes down: a modifier key doesn't modify itself.
Key makePressedKey(std::uint32_t virtualKey, bool isExtended, KeyModifiers modifiers);

// [any] A key as it goes up, with all modifiers as they are.
Key makeReleasedKey(std::uint32_t virtualKey, bool isExtended, const KeyModifiers& modifiers);

// [any] Whether a key other than Shift and Control is down. A Shift that goes down then belongs to that key.
bool isAnotherKeyThanShiftDown(const KeyboardState& state);

}
