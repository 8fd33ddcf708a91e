// Menus: their items, which their owners draw, and the frame around them.
#include "Gui/MirelGuiIF.h"
#include "Gui/Utils/skin/DrawnText.h"
#include "Gui/Utils/skin/GdiManager.h"
#include "Gui/Utils/skin/PopupMenu.h"
#include "Gui/Utils/skin/SkinProperties.h"
#include "Gui/Utils/skin/Skinner.h"
#include "Gui/Utils/windows/DeviceContexts.h"
#include "Gui/Utils/windows/WindowProperties.h"

#include <array>
#include <cstring>

namespace Gui {

using namespace SkinProperties;

namespace {

constexpr int TEXT_INDENT = 5;
constexpr UINT LINE_GAP = 3;

// All menus of a thread share one hook, however many windows asked for it.
HHOOK g_hook = nullptr;
int g_hookUsers = 0;

HFONT getItemFont(const GdiManager& gdi, const PopupMenu::Item& item) {
    return (item.selected ? gdi.getFont7() : gdi.getFont9()).handle();
}

bool isMenuWindow(HWND window) {
    std::array<char, 16> name{};
    GetClassNameA(window, name.data(), static_cast<int>(name.size()));
    return std::strcmp(name.data(), "#32768") == 0;
}

bool isDrawnByOwner(HWND menuWindow) {
    const auto menu = reinterpret_cast<HMENU>(SendMessageA(menuWindow, MN_GETHMENU, 0, 0));
    MENUITEMINFOA info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_FTYPE;
    return GetMenuItemInfoA(menu, 0, TRUE, &info) && (info.fType & MFT_OWNERDRAW) != 0;
}

void drawMenuFrame(HWND window, HDC dc) {
    RECT frame{};
    GetWindowRect(window, &frame);
    OffsetRect(&frame, -frame.left, -frame.top);
    FrameRect(dc, &frame, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
}

}

bool Skinner::handleDrawMenuItem(const DRAWITEMSTRUCT& item) {
    const auto* const record = reinterpret_cast<const PopupMenu::Item*>(item.itemData);
    if (!record)
        return false;
    const WindowsLib::Brush& brush = getItemBrush(item, item.hwndItem);
    FillRect(item.hDC, &item.rcItem, brush.handle());
    SetBkColor(item.hDC, brush.colour());
    SetTextColor(item.hDC, getItemTextColour(item.hwndItem));
    RECT place = item.rcItem;
    place.left += TEXT_INDENT;
    const SelectScope font(item.hDC, getItemFont(gdi(), *record));
    drawText(item.hDC, record->text, place, DT_SINGLELINE | DT_VCENTER);
    return true;
}

void Skinner::handleMeasureMenuItem(HWND window, MEASUREITEMSTRUCT& item) {
    const auto* const record = reinterpret_cast<const PopupMenu::Item*>(item.itemData);
    if (item.CtlType != ODT_MENU || !record)
        return;
    const WindowDc dc(window);
    const SelectScope font(dc.dc(), getItemFont(gdi(), *record));
    const SIZE extent = measureText(dc.dc(), record->text);
    item.itemWidth = static_cast<UINT>(extent.cx) + TEXT_INDENT;
    item.itemHeight = static_cast<UINT>(extent.cy) + LINE_GAP;
}

void Skinner::startHook() {
    if (g_hookUsers++ == 0)
        g_hook = SetWindowsHookExA(WH_CALLWNDPROC, hookProc, nullptr, GetCurrentThreadId());
}

void Skinner::endHook() {
    if (g_hookUsers == 0 || --g_hookUsers > 0)
        return;
    UnhookWindowsHookEx(g_hook);
    g_hook = nullptr;
}

LRESULT CALLBACK Skinner::hookProc(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HC_ACTION) {
        const auto& call = *reinterpret_cast<const CWPSTRUCT*>(lParam);
        if (call.message == WM_CREATE && isMenuWindow(call.hwnd)) {
            install(call.hwnd, MENU_PROCEDURE, menuProc);
            return 0;
        }
    }
    return CallNextHookEx(g_hook, code, wParam, lParam);
}

LRESULT CALLBACK Skinner::menuProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DESTROY)
        return passOnForTheLastTime(window, MENU_PROCEDURE, message, wParam, lParam);
    const LRESULT result = callOriginal(window, MENU_PROCEDURE, message, wParam, lParam);
    if (message == WM_PRINT && isDrawnByOwner(window)) {
        drawMenuFrame(window, reinterpret_cast<HDC>(wParam));
    } else if (message == WM_NCPAINT && isDrawnByOwner(window)) {
        const WindowDc dc(window, DCX_WINDOW | DCX_CACHE | DCX_CLIPSIBLINGS);
        drawMenuFrame(window, dc.dc());
    }
    return result;
}

}
