#pragma once

#include "Backend/core/settings/Rect.h"
#include "Gui/Utils/windows/WindowText.h"

#include <windows.h>

#include <string>

namespace Gui {

// [gui] A static control of a dialog template in whose place a window of one's own goes: it tells where in the layout,
// under which id and with which words.
struct Placeholder {
    explicit Placeholder(HWND window);

    // Destroys the static control and makes the window: as visible and enabled as that was, at its place among its
    // neighbours. Position, id and caption are those of this object.
    HWND replace(const char* windowClass, HINSTANCE module, void* object) const;

    HWND window;
    HWND parent;
    int id;
    Rect rect;  // In the parent's client area.
    std::string caption;
};

}
