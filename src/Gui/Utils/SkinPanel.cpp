#include "Gui/Utils/SkinPanel.h"

#include "Gui/Utils/windows/PassUp.h"
#include "Gui/Utils/windows/UserMessages.h"

namespace Gui {

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
