#pragma once

#include <windows.h>

namespace Gui {

// [gui] Has a window repainted. Ignores null, which to the system would mean every window of the desktop.
inline void redraw(HWND window, bool erase = false) {
    if (window)
        InvalidateRect(window, nullptr, erase);
}

}
