#pragma once

#include "Backend/core/settings/Rect.h"
#include "Gui/Utils/windows/WindowText.h"

#include <windows.h>

#include <string>

namespace Gui {

// [gui] A static control of a dialog template to be replaced by a custom window, which takes over its place in the
// layout, its id and its caption.
struct Placeholder {
    explicit Placeholder(HWND window);

    // Destroys the static control and creates the window, as visible and enabled as that was and at its place among its
    // neighbours, with the position, id and caption of this object.
    HWND replace(const char* windowClass, HINSTANCE module, void* object) const;

    HWND window;
    HWND parent;
    int id;
    Rect rect;  // In the parent's client area.
    std::string caption;
};

}
