// Buttons, check boxes, radio buttons and track bars.
#include "Gui/MirelGuiIF.h"
#include "Gui/Rules/values/TrackbarChannel.h"
#include "Gui/Utils/skin/GdiManager.h"
#include "Gui/Utils/skin/SkinProperties.h"
#include "Gui/Utils/skin/Skinner.h"
#include "Gui/Utils/windows/DeviceContexts.h"
#include "Gui/Utils/windows/Redraw.h"
#include "Gui/Utils/windows/UserMessages.h"
#include "Gui/Utils/windows/WindowProperties.h"

#include <commctrl.h>
#include <windowsx.h>

namespace Gui {

using namespace SkinProperties;

namespace {

constexpr const char* PASSING_WHEEL = "PASSINGWHEEL";  // Track bars: a wheel turn is being passed up.

void setChecked(HWND window, bool checked) {
    setNumber(window, CHECKED, checked);
    redraw(window);
}

Rect askForRect(HWND trackbar, UINT message) {
    RECT rect{};
    SendMessageA(trackbar, message, 0, reinterpret_cast<LPARAM>(&rect));
    return {rect.left, rect.top, rect.right, rect.bottom};
}

void fill(HDC dc, const Rect& place, const WindowsLib::Brush& brush) {
    const RECT rect{place.left, place.top, place.right, place.bottom};
    FillRect(dc, &rect, brush.handle());
}

}

LRESULT Skinner::handleButtonMessage(const char* property, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_DESTROY: return passOnForTheLastTime(window, property, message, wParam, lParam);
        case WM_NCHITTEST: m_gui.displayHelp(window); break;
        case WM_KEYDOWN:
        case WM_KEYUP:
        case WM_SYSKEYDOWN:
        case WM_SYSKEYUP: SendMessageA(GetParent(window), message, wParam, lParam); return 1;
        case WM_LBUTTONDBLCLK: PostMessageA(window, WM_LBUTTONDOWN, wParam, lParam); return 0;
        default: break;
    }
    return callOriginal(window, property, message, wParam, lParam);
}

LRESULT Skinner::buttonProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return handleButtonMessage(BUTTON_PROCEDURE, window, message, wParam, lParam);
}

LRESULT Skinner::checkBoxProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case BM_GETCHECK: return getFlag(window, CHECKED) ? BST_CHECKED : BST_UNCHECKED;
        case BM_SETCHECK: setChecked(window, wParam == BST_CHECKED); return 0;
        case WM_LBUTTONUP:
            PostMessageA(GetParent(window), UM_RETURN_FOCUS, 0, 0);
            if (inWindow(window, lParam))
                setChecked(window, !getFlag(window, CHECKED));
            break;
        default: break;
    }
    return handleButtonMessage(CHECK_BOX_PROCEDURE, window, message, wParam, lParam);
}

LRESULT Skinner::radioButtonProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case BM_GETCHECK: return getFlag(window, CHECKED) ? BST_CHECKED : BST_UNCHECKED;
        case BM_SETCHECK:
            if (wParam == BST_CHECKED && !getFlag(window, CHECKED))
                checkRadioButton(window);
            return 0;
        case WM_LBUTTONUP:
            PostMessageA(GetParent(window), UM_RETURN_FOCUS, 0, 0);
            if (inWindow(window, lParam) && !getFlag(window, CHECKED))
                checkRadioButton(window);
            break;
        default: break;
    }
    return handleButtonMessage(RADIO_BUTTON_PROCEDURE, window, message, wParam, lParam);
}

// The walk skips hidden and disabled buttons, perhaps even this one; it then ends where it began.
void Skinner::checkRadioButton(HWND window) {
    setChecked(window, true);
    const HWND parent = GetParent(window);
    const HWND first = GetNextDlgGroupItem(parent, window, FALSE);
    HWND other = first;
    while (other && other != window) {
        setChecked(other, false);
        other = GetNextDlgGroupItem(parent, other, FALSE);
        if (other == first)
            break;
    }
}

// The far edges also count as inside.
bool Skinner::inWindow(HWND window, LPARAM lParam) {
    RECT place{};
    GetWindowRect(window, &place);
    const int x = GET_X_LPARAM(lParam);
    const int y = GET_Y_LPARAM(lParam);
    return x >= 0 && y >= 0 && x <= place.right - place.left && y <= place.bottom - place.top;
}

LRESULT Skinner::trackbarProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_DESTROY: return passOnForTheLastTime(window, TRACKBAR_PROCEDURE, message, wParam, lParam);
        case WM_PAINT: handlePaintTrackbar(window); break;
        case WM_NCHITTEST: m_gui.displayHelp(window); break;
        case WM_MOUSEWHEEL:
        case UM_MOUSEWHEEL: return passWheelUp(window, wParam, lParam);
        default: break;
    }
    return callOriginal(window, TRACKBAR_PROCEDURE, message, wParam, lParam);
}

// If nobody on the way handles it, it reaches the main window, which sends it to what is under the pointer: here.
LRESULT Skinner::passWheelUp(HWND window, WPARAM wParam, LPARAM lParam) {
    if (getFlag(window, PASSING_WHEEL))
        return 0;
    setNumber(window, PASSING_WHEEL, 1);
    const LRESULT result = SendMessageA(GetParent(window), WM_MOUSEWHEEL, wParam, lParam);
    RemovePropA(window, PASSING_WHEEL);
    return result;
}

// Leaves the control's own procedure nothing to paint.
void Skinner::handlePaintTrackbar(HWND window) {
    const Rect thumb = askForRect(window, TBM_GETTHUMBRECT);
    Rect channel = askForRect(window, TBM_GETCHANNELRECT);
    if ((GetWindowLongPtrA(window, GWL_STYLE) & TBS_VERT) != 0)
        channel = getVerticalChannel(thumb, channel);
    RECT area{};
    GetClientRect(window, &area);

    const PaintScope paint(window);
    FillRect(paint.dc(), &area,
             (getFlag(window, TOGGLE) ? gdi().getSelectedCellBrush() : gdi().getBackroundBrush()).handle());
    fill(paint.dc(), channel, gdi().getUnusedButtonBrush());
    fill(paint.dc(), thumb, gdi().getSelectedButtonBrush());
}

}
