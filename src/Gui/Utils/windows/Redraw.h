#pragma once

#include <windows.h>

namespace Gui {

// [gui] Has a window painted anew. Without a window nothing happens; the system would take null for every window of the
// desktop.
inline void redraw(HWND window, bool erase = false) {
    if (window)
        InvalidateRect(window, nullptr, erase);
}

}
