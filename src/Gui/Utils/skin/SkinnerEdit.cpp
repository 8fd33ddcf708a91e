// Edits: their frame, the wheel on their values, and the list of values.
#include "Gui/MirelGuiIF.h"
#include "Gui/Rules/values/ValuePicker.h"
#include "Gui/Rules/values/ValueWheel.h"
#include "Gui/Utils/skin/GdiManager.h"
#include "Gui/Utils/skin/PopupMenu.h"
#include "Gui/Utils/skin/SkinProperties.h"
#include "Gui/Utils/skin/Skinner.h"
#include "Gui/Utils/windows/DeviceContexts.h"
#include "Gui/Utils/windows/UserMessages.h"
#include "Gui/Utils/windows/Wheel.h"
#include "Gui/Utils/windows/WindowProperties.h"

#include <windowsx.h>

#include <array>
#include <string>

namespace Gui {

using namespace SkinProperties;

namespace {

constexpr DWORD NO_POINT = 0xffffffff;

bool isBordered(HWND window) {
    return (GetWindowLongPtrA(window, GWL_STYLE) & WS_BORDER) != 0 ||
           (GetWindowLongPtrA(window, GWL_EXSTYLE) & WS_EX_CLIENTEDGE) != 0;
}

bool hasScrollBar(HWND window) {
    return (GetWindowLongPtrA(window, GWL_STYLE) & (WS_HSCROLL | WS_VSCROLL)) != 0;
}

std::string readText(HWND window) {
    std::array<char, ValueField::TEXT_LENGTH + 1> text{};
    GetWindowTextA(window, text.data(), static_cast<int>(text.size()));
    return text.data();
}

bool endsEntry(WPARAM key) {
    return key == VK_RETURN || key == VK_ESCAPE;
}

// A field that users can type into. A ComboBox passes its keys to the desk.
bool isField(HWND window) {
    constexpr LONG_PTR NEEDED = WS_VISIBLE | WS_TABSTOP;
    const LONG_PTR style = GetWindowLongPtrA(window, GWL_STYLE);
    return getFlag(window, EDIT_PROCEDURE) && !getFlag(window, COMBO_BOX) && (style & NEEDED) == NEEDED &&
           (style & (ES_READONLY | WS_DISABLED)) == 0;
}

// The next field of the same window in its tab order, from the last one to the first. Null without another one.
HWND findNextField(HWND field, bool backwards) {
    HWND other = field;
    do {
        other = GetWindow(other, backwards ? GW_HWNDPREV : GW_HWNDNEXT);
        if (!other)
            other = GetWindow(field, backwards ? GW_HWNDLAST : GW_HWNDFIRST);
    } while (other != field && !isField(other));
    return other == field ? nullptr : other;
}

// Where a list of values opens. A key press gives no point.
POINT getListCorner(HWND window, LPARAM lParam) {
    if (static_cast<DWORD>(lParam) != NO_POINT)
        return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    RECT place{};
    GetWindowRect(window, &place);
    return {place.left, place.bottom};
}

}

LRESULT Skinner::editProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_DESTROY: return passOnForTheLastTime(window, EDIT_PROCEDURE, message, wParam, lParam);
        case WM_NCHITTEST: m_gui.displayHelp(window); break;
        case WM_PAINT:
        case WM_ERASEBKGND:
        case WM_NCPAINT:
            if (!isBordered(window))
                break;
            if (message == WM_NCPAINT && hasScrollBar(window))
                callOriginal(window, EDIT_PROCEDURE, message, wParam, lParam);
            drawEditFrame(window);
            if (message == WM_PAINT)
                break;
            return 0;
        case WM_SETCURSOR: SetCursor(LoadCursorA(nullptr, IDC_ARROW)); return 1;
        case WM_CONTEXTMENU:
            if (handleContextMenu(window, wParam, lParam))
                return 0;
            break;
        case WM_KEYDOWN:
            if (handleEditKey(window, wParam))
                return 0;
            break;
        case WM_CHAR:
            if (endsEntry(wParam) || wParam == VK_TAB)
                return 0;
            break;
        case WM_MOUSEWHEEL:
        case UM_MOUSEWHEEL:
            if (handleEditBoxMouseWheel(window, message, wParam, lParam))
                return 0;
            break;
        default: break;
    }
    return callOriginal(window, EDIT_PROCEDURE, message, wParam, lParam);
}

// The message loop leaves Tab to the windows, because on the main window it is a key like any other.
bool Skinner::handleEditKey(HWND window, WPARAM key) {
    if (endsEntry(key)) {
        PostMessageA(GetParent(window), UM_RETURN_FOCUS, 0, 0);
        return true;
    }
    if (key != VK_TAB || GetKeyState(VK_CONTROL) < 0)
        return false;
    if (const HWND next = findNextField(window, GetKeyState(VK_SHIFT) < 0)) {
        SetFocus(next);
        SendMessageA(next, EM_SETSEL, 0, -1);
    }
    return true;
}

void Skinner::drawEditFrame(HWND window) {
    RECT frame{};
    GetWindowRect(window, &frame);
    OffsetRect(&frame, -frame.left, -frame.top);
    const WindowDc dc(window, DCX_WINDOW | DCX_CACHE | DCX_CLIPSIBLINGS);
    const WindowsLib::Brush& border =
        IsWindowEnabled(window) ? gdi().getControlBorderBrush() : gdi().getControlBorderDisabledBrush();
    FrameRect(dc.dc(), &frame, border.handle());
    InflateRect(&frame, -1, -1);
    FrameRect(dc.dc(), &frame, gdi().getBackroundBrush().handle());
}

ValueField Skinner::readField(HWND window) {
    ValueField field;
    field.isNote = getFlag(window, SHOW_NOTE_STRING);
    field.jumpsByTwelve = getFlag(window, JUMP_BY_12);
    field.showsZeroAsBlank = getFlag(window, SHOW_ZERO_AS_BLANK);
    field.takesDigitsOnly = (GetWindowLongPtrA(window, GWL_STYLE) & ES_NUMBER) != 0;
    field.min = getNumber(window, MIN);
    field.max = getNumber(window, MAX);
    field.minIsZero = getFlag(window, MIN_ZERO);
    field.maxIsZero = getFlag(window, MAX_ZERO);
    return field;
}

bool Skinner::handleEditBoxMouseWheel(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (getFlag(window, NO_WHEEL)) {
        if (message == WM_MOUSEWHEEL)
            return false;
        SendMessageA(GetParent(window), message, wParam, lParam);
        return true;
    }
    // Fine wheels send many partial notches, by which the user has not changed anything yet.
    const int steps = getWheelSteps(wParam);
    if (steps == 0)
        return true;
    const auto text = turnValue(readText(window), steps, isShiftDown(wParam), readField(window));
    if (text)
        SetWindowTextA(window, text->c_str());
    return true;
}

bool Skinner::handleContextMenu(HWND window, WPARAM, LPARAM lParam) {
    const auto picker = makeValuePicker(readText(window), readField(window));
    if (!picker)
        return false;
    PopupMenu menu(gdi());
    int id = 0;
    for (const ValuePicker::Choice& choice : picker->choices)
        menu.add(choice.caption, ++id);
    menu.select(picker->current);
    const POINT corner = getListCorner(window, lParam);
    // The parent draws the items, because it is the one skinned as a window.
    const int choice = menu.track(GetParent(window), corner.x, corner.y);
    if (choice > 0 && IsWindow(window))
        SetWindowTextA(window, picker->choices[static_cast<std::size_t>(choice) - 1].text.c_str());
    return true;
}

}
