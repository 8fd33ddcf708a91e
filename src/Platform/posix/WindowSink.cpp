#include "Platform/WindowSink.h"

namespace Platform {

HWND WindowSink::handle() {
    return reinterpret_cast<HWND>(this);
}

bool postToWindow(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (!window)
        return false;
    reinterpret_cast<WindowSink*>(window)->windowMessage(message, wParam, lParam);
    return true;
}

}
