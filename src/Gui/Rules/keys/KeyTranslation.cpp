#include "Gui/Rules/keys/KeyTranslation.h"

namespace Gui {

std::int32_t translateKeyCode(std::uint32_t virtualKey, bool isExtended) {
    switch (virtualKey) {
        case VirtualKeys::CONTROL:
            return isExtended ? Key::RIGHT_CONTROL : static_cast<std::int32_t>(VirtualKeys::CONTROL);
        case VirtualKeys::ALT:
            return static_cast<std::int32_t>(isExtended ? VirtualKeys::RIGHT_ALT : VirtualKeys::LEFT_ALT);
        case VirtualKeys::ENTER: return isExtended ? Key::NUMPAD_ENTER : static_cast<std::int32_t>(VirtualKeys::ENTER);
        default: return static_cast<std::int32_t>(virtualKey);
    }
}

Key makePressedKey(std::uint32_t virtualKey, bool isExtended, KeyModifiers modifiers) {
    const std::int32_t code = translateKeyCode(virtualKey, isExtended);
    if (code == static_cast<std::int32_t>(VirtualKeys::CONTROL) || code == Key::RIGHT_CONTROL)
        modifiers.control = false;
    if (code == static_cast<std::int32_t>(VirtualKeys::LEFT_ALT) ||
        code == static_cast<std::int32_t>(VirtualKeys::RIGHT_ALT))
        modifiers.alt = false;
    if (code == static_cast<std::int32_t>(VirtualKeys::SHIFT))
        modifiers.shift = false;
    return {code, modifiers.shift, modifiers.control, modifiers.alt, modifiers.win};
}

Key makeReleasedKey(std::uint32_t virtualKey, bool isExtended, const KeyModifiers& modifiers) {
    return {translateKeyCode(virtualKey, isExtended), modifiers.shift, modifiers.control, modifiers.alt, modifiers.win};
}

bool isAnotherKeyThanShiftDown(const KeyboardState& state) {
    constexpr std::uint8_t DOWN = 0x80;
    for (std::uint32_t key = 0; key < state.size(); ++key) {
        const bool isOfShiftOrControl = key == VirtualKeys::SHIFT || key == VirtualKeys::CONTROL ||
                                        (key >= VirtualKeys::LEFT_SHIFT && key <= VirtualKeys::RIGHT_CONTROL);
        if (!isOfShiftOrControl && (state[key] & DOWN) != 0)
            return true;
    }
    return false;
}

}
