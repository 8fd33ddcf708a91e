#pragma once

#include "Gui/Utils/skin/GdiManager.h"

#include <windows.h>

namespace Gui {

// [gui] The background of a button that stands for several things, some on and some off.
inline void fillOnAndOff(HDC dc, const RECT& rect, const GdiManager& gdi) {
    RECT off = rect;
    RECT on = rect;
    off.right = on.left = rect.left + (rect.right - rect.left) / 2;
    FillRect(dc, &off, gdi.getUnselectedButtonBrush().handle());
    FillRect(dc, &on, gdi.getSelectedButtonBrush().handle());
}

}
