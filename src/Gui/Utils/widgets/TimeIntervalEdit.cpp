#include "Gui/Utils/widgets/TimeIntervalEdit.h"

#include "Gui/Rules/values/TypedNumber.h"
#include "Gui/Utils/windows/WindowProperties.h"
#include "Gui/Utils/windows/WindowText.h"

#include <windowsx.h>

#include <string>

namespace Gui {

namespace {

constexpr const char* CANCEL = "CANCEL";
constexpr int BEHIND_LAST = 1000;

bool isInside(HWND window, LPARAM lParam) {
    RECT rect{};
    GetClientRect(window, &rect);
    return PtInRect(&rect, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}) != FALSE;
}

}

void TimeIntervalEdit::open(HWND parent, int x, int y, int width, int height, HFONT font, std::int32_t value) {
    if (getWindowHandle())
        return;
    create(parent, WS_VISIBLE | ES_CENTER, x, y, width, height, std::to_string(value).c_str());
    const HWND window = getWindowHandle();
    if (!window)
        return;
    SendMessageA(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    SendMessageA(window, EM_SETSEL, BEHIND_LAST, BEHIND_LAST);
    SetFocus(window);
    // The next press anywhere ends the edit.
    SetCapture(window);
}

LRESULT TimeIntervalEdit::wndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_GETDLGCODE: return EditBox::wndProc(window, message, wParam, lParam) | DLGC_WANTALLKEYS;
        case WM_KEYDOWN:
            if (wParam != VK_RETURN && wParam != VK_ESCAPE)
                break;
            if (wParam == VK_ESCAPE)
                setNumber(window, CANCEL, 1);
            end(true);
            return 0;
        case WM_CHAR:
            if (wParam == VK_RETURN || wParam == VK_ESCAPE)
                return 0;
            break;
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN:
        case WM_MBUTTONDOWN:
            if (isInside(window, lParam))
                break;
            end(true);
            return 0;
        case WM_LBUTTONUP: {
            // The control releases the mouse after a press on its text.
            const LRESULT result = EditBox::wndProc(window, message, wParam, lParam);
            if (getWindowHandle())
                SetCapture(window);
            return result;
        }
        case WM_KILLFOCUS: end(false); return 0;
        case WM_DESTROY: RemovePropA(window, CANCEL); break;
        default: break;
    }
    return EditBox::wndProc(window, message, wParam, lParam);
}

void TimeIntervalEdit::end(bool byKey) {
    const HWND window = getWindowHandle();
    // The window loses the focus once more when it closes.
    if (m_ending || !window)
        return;
    m_ending = true;
    const bool taken = !getFlag(window, CANCEL);
    const std::int32_t value = readTypedNumber(getWindowText(window));
    if (GetCapture() == window)
        ReleaseCapture();
    DestroyWindow(window);
    m_ending = false;
    m_listener.editEnded(taken, value, byKey);
}

}
