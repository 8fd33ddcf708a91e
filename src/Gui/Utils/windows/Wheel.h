#pragma once

#include <windows.h>

namespace Gui {

// [gui] Whether Shift is held at a turn of the wheel, by the message's own word or by the keyboard, since other windows
// pass the wheel on.
inline bool isShiftDown(WPARAM wheel) {
    return (LOWORD(wheel) & MK_SHIFT) != 0 || GetKeyState(VK_SHIFT) < 0;
}

}
