// How windows and their controls get the skin, and what a window draws for its controls.
#include "Gui/MirelGuiIF.h"
#include "Gui/Rules/places/ButtonLook.h"
#include "Gui/Utils/skin/DrawnText.h"
#include "Gui/Utils/skin/GdiManager.h"
#include "Gui/Utils/skin/SkinProperties.h"
#include "Gui/Utils/skin/Skinner.h"
#include "Gui/Utils/windows/DeviceContexts.h"
#include "Gui/Utils/windows/WindowProcedure.h"
#include "Gui/Utils/windows/WindowProperties.h"
#include "Gui/Utils/windows/WindowText.h"

#include <commctrl.h>

#include <array>
#include <cstring>

namespace Gui {

using namespace SkinProperties;

namespace {

constexpr LPARAM EDIT_MARGIN = 2;

}

template <Skinner::Procedure PROCEDURE>
LRESULT CALLBACK Skinner::enter(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* const skinner = getObject<Skinner>(window, SKINNER);
    if (!skinner)
        return DefWindowProcA(window, message, wParam, lParam);
    return withoutExceptions([&] { return (skinner->*PROCEDURE)(window, message, wParam, lParam); });
}

const GdiManager& Skinner::gdi() const {
    return m_gui.getGdiManager();
}

// A procedure in front of itself would recurse endlessly.
void Skinner::install(HWND window, const char* property, WNDPROC procedure) {
    if (!getFlag(window, property))
        subclass(window, property, procedure);
}

// To the system, the children of no window are all windows of the desktop.
void Skinner::skinWindow(HWND window) {
    if (!window)
        return;
    EnumChildWindows(window, skinEachChild, reinterpret_cast<LPARAM>(this));
    setObject(window, SKINNER, this);
    install(window, WINDOW_PROCEDURE, enter<&Skinner::wndProc>);
}

BOOL CALLBACK Skinner::skinEachChild(HWND window, LPARAM skinner) {
    reinterpret_cast<Skinner*>(skinner)->skinChild(window);
    return TRUE;
}

void Skinner::leaveWindow(HWND window) const {
    if (!window)
        return;
    forget(window, SKINNER, this);
    EnumChildWindows(window, leaveEachChild, reinterpret_cast<LPARAM>(this));
}

BOOL CALLBACK Skinner::leaveEachChild(HWND window, LPARAM skinner) {
    forget(window, SKINNER, reinterpret_cast<const Skinner*>(skinner));
    return TRUE;
}

void Skinner::skinChild(HWND window) {
    std::array<char, 300> name{};
    if (GetClassNameA(window, name.data(), static_cast<int>(name.size())) == 0)
        return;
    if (getFlag(window, SKINNER))
        return;
    setObject(window, SKINNER, this);
    if (lstrcmpiA(name.data(), "Button") == 0)
        skinButton(window);
    else if (std::strcmp(name.data(), "Edit") == 0)
        skinEdit(window);
    else if (std::strcmp(name.data(), TRACKBAR_CLASSA) == 0)
        install(window, TRACKBAR_PROCEDURE, enter<&Skinner::trackbarProc>);
}

void Skinner::skinButton(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    if (isSmallButton(place.right - place.left, place.bottom - place.top)) {
        const WindowsLib::Font& font = isSign(getWindowText(window)) ? gdi().getFont5() : gdi().getFont3();
        SendMessageA(window, WM_SETFONT, reinterpret_cast<WPARAM>(font.handle()), FALSE);
    }

    const LONG_PTR style = GetWindowLongPtrA(window, GWL_STYLE);
    switch (getButtonKind(static_cast<unsigned>(style & BUTTON_TYPE_BITS))) {
        case ButtonKind::radioButton:
            setNumber(window, CHECKED, 0);
            install(window, RADIO_BUTTON_PROCEDURE, enter<&Skinner::radioButtonProc>);
            break;
        case ButtonKind::checkBox:
            setNumber(window, CHECKED, 0);
            install(window, CHECK_BOX_PROCEDURE, enter<&Skinner::checkBoxProc>);
            break;
        case ButtonKind::pushButton: install(window, BUTTON_PROCEDURE, enter<&Skinner::buttonProc>); break;
    }
    // The type is a number, not a set of bits: combined with a radio button's it would be a different type.
    SetWindowLongPtrA(window, GWL_STYLE, (style & ~LONG_PTR{BUTTON_TYPE_BITS}) | BS_OWNERDRAW);
}

void Skinner::skinEdit(HWND window) {
    install(window, EDIT_PROCEDURE, enter<&Skinner::editProc>);
    if ((GetWindowLongPtrA(window, GWL_STYLE) & ES_CENTER) == 0)
        SendMessageA(window, EM_SETMARGINS, EC_LEFTMARGIN, EDIT_MARGIN);
}

LRESULT Skinner::wndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_DESTROY: return passOnForTheLastTime(window, WINDOW_PROCEDURE, message, wParam, lParam);
        case WM_ERASEBKGND: {
            RECT area{};
            GetClientRect(window, &area);
            FillRect(reinterpret_cast<HDC>(wParam), &area, gdi().getBackroundBrush().handle());
            return 1;
        }
        case WM_NCPAINT:
            if (handleNCPaint(window))
                return 0;
            break;
        case WM_DRAWITEM: return handleDrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)) ? 1 : 0;
        case WM_MEASUREITEM: handleMeasureMenuItem(window, *reinterpret_cast<MEASUREITEMSTRUCT*>(lParam)); return 1;
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORSTATIC:
            return handleControlColour(reinterpret_cast<HWND>(lParam), reinterpret_cast<HDC>(wParam),
                                       message == WM_CTLCOLOREDIT);
        case WM_PARENTNOTIFY: {
            // It also comes from windows below a child.
            const auto child = reinterpret_cast<HWND>(lParam);
            if (LOWORD(wParam) == WM_CREATE && GetParent(child) == window)
                skinChild(child);
            break;
        }
        default: break;
    }
    return callOriginal(window, WINDOW_PROCEDURE, message, wParam, lParam);
}

LRESULT Skinner::handleControlColour(HWND control, HDC dc, bool isEdit) {
    const WindowsLib::Brush* background = &gdi().getBackroundBrush();
    const WindowsLib::Brush* text = nullptr;
    if (isEdit) {
        text = &gdi().getTextBrush();
        if (const auto* const colour = getObject<const WindowsLib::Brush>(control, COLOUR)) {
            text = colour;
            if (const auto* const own = getObject<const WindowsLib::Brush>(control, BACKGROUND_COLOUR))
                background = own;
        }
    } else {
        text = getFlag(control, TEXT) ? &gdi().getTextBrush() : &gdi().getLabelBrush();
    }
    if (getFlag(control, GRAY_TEXT) || (!isEdit && getFlag(control, DISABLED)))
        text = &gdi().getLabelDisabledBrush();
    SetTextColor(dc, text->colour());
    SetBkColor(dc, background->colour());
    return reinterpret_cast<LRESULT>(background->handle());
}

bool Skinner::handleNCPaint(HWND window) {
    constexpr LONG_PTR FRAMED = WS_BORDER | WS_CHILD;
    if ((GetWindowLongPtrA(window, GWL_STYLE) & FRAMED) != FRAMED)
        return false;
    RECT place{};
    GetWindowRect(window, &place);
    const LONG width = place.right - place.left;
    const LONG height = place.bottom - place.top;
    const WindowDc dc(window, DCX_WINDOW | DCX_CACHE | DCX_CLIPSIBLINGS);
    for (const RECT& side : {RECT{0, 0, width, 1}, RECT{0, height - 1, width, height}, RECT{0, 1, 1, height - 1},
                             RECT{width - 1, 1, width, height - 1}})
        FillRect(dc.dc(), &side, gdi().getPanelBorderBrush().handle());
    return true;
}

bool Skinner::handleDrawItem(const DRAWITEMSTRUCT& item) {
    switch (item.CtlType) {
        case ODT_BUTTON: return handleDrawButtonItem(item);
        case ODT_MENU: return handleDrawMenuItem(item);
        default: return false;
    }
}

bool Skinner::handleDrawButtonItem(const DRAWITEMSTRUCT& item) {
    if (item.itemAction == ODA_FOCUS)
        return false;
    const std::string text = getWindowText(item.hwndItem);
    FillRect(item.hDC, &item.rcItem, getItemBrush(item, item.hwndItem).handle());
    SetBkMode(item.hDC, TRANSPARENT);
    SetTextColor(item.hDC, getItemTextColour(item.hwndItem));
    RECT place = item.rcItem;
    if (isSign(text) && place.bottom - place.top < SMALL_BUTTON_HEIGHT)
        OffsetRect(&place, 0, -1);
    drawText(item.hDC, text, place, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    return true;
}

const WindowsLib::Brush& Skinner::getItemBrush(const DRAWITEMSTRUCT& item, HWND window) const {
    if (const auto* const colour = getObject<const WindowsLib::Brush>(window, COLOUR))
        return *colour;
    if ((item.itemState & (ODS_DISABLED | ODS_GRAYED)) != 0 || getFlag(window, GRAY_TEXT))
        return gdi().getDisabledButtonBrush();
    if ((item.itemState & ODS_SELECTED) != 0 || getFlag(window, CHECKED))
        return gdi().getSelectedButtonBrush();
    return gdi().getUnselectedButtonBrush();
}

COLORREF Skinner::getItemTextColour(HWND window) const {
    return getFlag(window, SELECTED) ? gdi().getSelectedButtonBrush().colour() : GdiManager::BLACK;
}

}
