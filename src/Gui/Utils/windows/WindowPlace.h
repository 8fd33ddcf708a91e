// A window's place on the screen, minimised or not.
#pragma once

#include "Backend/core/settings/Rect.h"

#include <windows.h>

namespace Gui {

inline RECT toWindows(const Rect& rect) {
    return {rect.left, rect.top, rect.right, rect.bottom};
}

inline Rect fromWindows(const RECT& rect) {
    return {rect.left, rect.top, rect.right, rect.bottom};
}

// The monitor nearest to a place: its whole area, and what the task bar and the like leave free.
inline MONITORINFO monitorNear(const Rect& place) {
    const RECT rect = toWindows(place);
    MONITORINFO info{};
    info.cbSize = sizeof info;
    GetMonitorInfoA(MonitorFromRect(&rect, MONITOR_DEFAULTTONEAREST), &info);
    return info;
}

// The system gives the restored place of a minimised window relative to the work area of its monitor.
inline POINT workAreaOffset(const Rect& place) {
    const MONITORINFO monitor = monitorNear(place);
    return {monitor.rcWork.left - monitor.rcMonitor.left, monitor.rcWork.top - monitor.rcMonitor.top};
}

// [any] The window's rectangle on the screen; for a minimised one the rectangle it will be restored to.
inline Rect windowPlace(HWND window) {
    RECT rect{};
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    if (IsIconic(window) && GetWindowPlacement(window, &placement)) {
        rect = placement.rcNormalPosition;
        const POINT offset = workAreaOffset(fromWindows(rect));
        OffsetRect(&rect, offset.x, offset.y);
    } else {
        GetWindowRect(window, &rect);
    }
    return fromWindows(rect);
}

// [gui] Moves the window there. A minimised one stays minimised.
inline void placeWindow(HWND window, const Rect& place) {
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    if (IsIconic(window) && GetWindowPlacement(window, &placement)) {
        placement.rcNormalPosition = toWindows(place);
        const POINT offset = workAreaOffset(place);
        OffsetRect(&placement.rcNormalPosition, -offset.x, -offset.y);
        placement.showCmd = SW_SHOWMINNOACTIVE;
        SetWindowPlacement(window, &placement);
        return;
    }
    SetWindowPos(window, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

}
