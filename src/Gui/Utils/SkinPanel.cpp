#include "Gui/Utils/SkinPanel.h"

#include "Gui/Utils/windows/UserMessages.h"

#include <optional>

namespace Gui {

namespace {

// What the keyboard and the pointer do to a panel is for the main window. Nothing for a message of another kind.
std::optional<INT_PTR> passUp(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_KEYDOWN:
        case WM_KEYUP:
        case WM_SYSKEYDOWN:
        case WM_SYSKEYUP:
        case WM_LBUTTONDOWN: SendMessageA(GetParent(window), message, wParam, lParam); return 1;
        case WM_SETFOCUS:
        case UM_RETURN_FOCUS: PostMessageA(GetParent(window), UM_RETURN_FOCUS, 0, 0); return 0;
        default: return std::nullopt;
    }
}

}

void SkinPanel::createWnd(HINSTANCE module, HWND parentWindow) {
    Panel::createWnd(module, parentWindow);
    m_skinner.skinWindow(getWindowHandle());
}

void SkinPanel::showWnd(bool show) {
    Panel::showWnd(show);
    if (!show && IsWindow(getWindowHandle()))
        PostMessageA(GetParent(getWindowHandle()), UM_RETURN_FOCUS, 0, 0);
}

LRESULT SkinPanel::wndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto result = passUp(window, message, wParam, lParam);
    return result ? *result : Panel::wndProc(window, message, wParam, lParam);
}

INT_PTR SkinPanel::dlgProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return passUp(window, message, wParam, lParam).value_or(0);
}

}
