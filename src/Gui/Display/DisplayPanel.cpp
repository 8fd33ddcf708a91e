#include "Gui/Display/DisplayPanel.h"

#include "Backend/core/MirelMessageManager.h"
#include "Backend/core/log/DisplayMessageManager.h"
#include "Gui/MirelGuiIF.h"
#include "Gui/ResourceIds.h"
#include "Gui/Rules/texts/DisplayText.h"
#include "Gui/Utils/skin/GdiManager.h"
#include "Gui/Utils/skin/SkinProperties.h"
#include "Gui/Utils/windows/DeviceContexts.h"
#include "Gui/Utils/windows/UserMessages.h"
#include "Gui/Utils/windows/WindowProcedure.h"

#include <windowsx.h>

#include <algorithm>
#include <array>
#include <cstring>

namespace Gui::Display {

namespace {

constexpr const char* OBJECT = "DisplayPanel";
constexpr const char* PROCEDURE = "ORIG_PROC";
constexpr UINT_PTR TIMER = 0;
constexpr UINT TIMER_MILLISECONDS = 100;
constexpr int GRIP_HEIGHT = 20;  // The strip at the bottom of the text that resizes the panel, in pixels.
constexpr int LINE_HEIGHT = 5;   // Of the line that shows where the edge would go.
constexpr int HIDDEN_EDGE = 6;   // How far the text's top and bottom edges lie outside the panel, together.
constexpr int BEYOND_THE_END = 30001;
constexpr std::array<int, 4> COLUMNS = {90, 110, 165, 245};  // In dialog units.

RECT windowRect(HWND window) {
    RECT rect{};
    GetWindowRect(window, &rect);
    return rect;
}

bool isControlHeld(WPARAM wParam) {
    return (wParam & MK_CONTROL) != 0;
}

}

DisplayPanel::DisplayPanel(MirelGuiIF& gui, Backend::Display::DisplayMessageManager& display)
    : SkinPanel(gui, IDD_DISPLAY, true), m_display(display), m_menu(gui.getGdiManager(), IDR_DISPLAY_MENU) {}

void DisplayPanel::createWnd(HINSTANCE module, HWND parentWindow) {
    SkinPanel::createWnd(module, parentWindow);
    m_edit = GetDlgItem(getWindowHandle(), IDC_TEXT);
    setNumber(m_edit, SkinProperties::TEXT, 1);
    setNumber(m_edit, SkinProperties::NO_WHEEL, 1);
    setNumber(m_edit, SkinProperties::HELP, HELP_DISPLAY);
    setObject(m_edit, OBJECT, this);
    subclass(m_edit, PROCEDURE, editProcedure);
    SendMessageA(m_edit, EM_LIMITTEXT, DisplayText::CAPACITY, 0);
    modifyHeight(firstHeight());
    setLargeFont(m_largeFont);
    SetTimer(getWindowHandle(), TIMER, TIMER_MILLISECONDS, nullptr);
    PostMessageA(getWindowHandle(), UM_DISPLAY_CREATED, 0, 0);
}

// The lower edge must stay within the pointer's reach, so that it can be dragged up again.
int DisplayPanel::firstHeight() const {
    const int height = gui().getRegistrySettings().getDisplayHeight();
    return DisplayText::limitHeight(std::min(height, GetSystemMetrics(SM_CYVIRTUALSCREEN)));
}

void DisplayPanel::showWnd(bool show) {
    SkinPanel::showWnd(show);
    SendMessageA(m_edit, EM_SCROLLCARET, 0, 0);
}

INT_PTR DisplayPanel::dlgProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case UM_DISPLAY_CREATED: requestText(true); return 1;
        case WM_TIMER: handleTimer(); return 1;
        case WM_SIZE: handleSize(HIWORD(lParam)); return 1;
        case WM_DESTROY: handleDestroy(); return 1;
        case WM_MOUSEMOVE:
            if (m_resizing && (wParam & MK_LBUTTON))
                moveLine(onScreen(GET_Y_LPARAM(lParam)));
            return 1;
        case WM_LBUTTONUP: endResizing(onScreen(GET_Y_LPARAM(lParam))); return 1;
        case WM_NCLBUTTONUP: endResizing(GET_Y_LPARAM(lParam)); return 1;
        case WM_CAPTURECHANGED: giveResizingUp(); return 1;
        default: return SkinPanel::dlgProc(window, message, wParam, lParam);
    }
}

void DisplayPanel::handleTimer() {
    // One request at a time: more would only fill the queue of a log that is behind.
    if (isVisible() && (!m_isAwaitingText || m_display.isIdle()))
        requestText(false);
}

void DisplayPanel::requestText(bool all) {
    m_isAwaitingText = true;
    if (all)
        m_display.postSendAll();
    else
        m_display.postFlush();
}

void DisplayPanel::handleSize(int height) const {
    if (!m_edit)
        return;
    const RECT rect = windowRect(m_edit);
    SetWindowPos(m_edit, nullptr, 0, 0, rect.right - rect.left, height + HIDDEN_EDGE,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    SendMessageA(m_edit, EM_SCROLLCARET, 0, 0);
}

void DisplayPanel::handleDestroy() {
    KillTimer(getWindowHandle(), TIMER);
    giveResizingUp();
    m_display.sendSetListener(nullptr);
    const RECT rect = windowRect(getWindowHandle());
    gui().getMirelMessageManager().postSetDisplayHeight(rect.bottom - rect.top);
}

void DisplayPanel::append(const char* text) {
    const std::size_t added = std::strlen(text);
    if (DisplayText::isFull(m_length, added)) {
        // The user may have cleared the text meanwhile.
        const std::string shown = readText();
        m_length = shown.size();
        if (DisplayText::isFull(m_length, added))
            replaceText(DisplayText::makeRoom(shown, added).c_str());
    }
    SendMessageA(m_edit, EM_SETSEL, BEYOND_THE_END, BEYOND_THE_END);
    SendMessageA(m_edit, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(text));
    m_length += added;
    m_isAwaitingText = false;
}

void DisplayPanel::setText(const char* text) {
    replaceText(text);
    m_isAwaitingText = false;
}

void DisplayPanel::replaceText(const char* text) {
    const std::size_t length = std::strlen(text);
    if (length >= DisplayText::CAPACITY)
        return;
    m_length = length;
    SendMessageA(m_edit, EM_SETSEL, 0, -1);
    SendMessageA(m_edit, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(text));
    SendMessageA(m_edit, EM_SETSEL, static_cast<WPARAM>(-1), 0);
    SendMessageA(m_edit, EM_SCROLLCARET, 0, 0);
}

std::string DisplayPanel::readText() const {
    std::string text(DisplayText::CAPACITY, '\0');
    text.resize(static_cast<std::size_t>(
        SendMessageA(m_edit, WM_GETTEXT, DisplayText::CAPACITY, reinterpret_cast<LPARAM>(text.data()))));
    return text;
}

void DisplayPanel::setLargeFont(bool large) {
    m_largeFont = large;
    if (!m_edit)
        return;
    SendMessageA(m_edit, WM_SETFONT, 0, FALSE);
    std::array<int, 4> stops = COLUMNS;
    if (large) {
        const RECT rect = windowRect(m_edit);
        stops.fill(rect.right - rect.left);
    }
    SendMessageA(m_edit, EM_SETTABSTOPS, stops.size(), reinterpret_cast<LPARAM>(stops.data()));
    const GdiManager& gdi = gui().getGdiManager();
    const WindowsLib::Font& font = large ? gdi.getLargeFont() : gdi.getSmallFont();
    SendMessageA(m_edit, WM_SETFONT, reinterpret_cast<WPARAM>(font.handle()), TRUE);
}

LRESULT CALLBACK DisplayPanel::editProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    DisplayPanel* const panel = getObject<DisplayPanel>(window, OBJECT);
    if (!panel)
        return callOriginal(window, PROCEDURE, message, wParam, lParam);
    return withoutExceptions([&] { return panel->editProc(window, message, wParam, lParam); });
}

LRESULT DisplayPanel::editProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_NCHITTEST:
            gui().displayHelp(window);
            showPointer(window, lParam);
            break;
        case WM_SETCURSOR: return 1;
        case WM_CONTEXTMENU: showMenu(lParam); return 0;
        case WM_KEYDOWN:
            if (wParam == VK_TAB || wParam == VK_RETURN || wParam == VK_ESCAPE)
                gui().setFocus();
            break;
        case WM_LBUTTONDOWN:
            if (isControlHeld(wParam))
                break;
            handlePress(window, lParam);
            return 0;
        case WM_DESTROY:
            m_edit = nullptr;
            RemovePropA(window, OBJECT);
            return passOnForTheLastTime(window, PROCEDURE, message, wParam, lParam);
        default: break;
    }
    return callOriginal(window, PROCEDURE, message, wParam, lParam);
}

namespace {

bool isOnGrip(HWND edit, int y) {
    RECT client{};
    GetClientRect(edit, &client);
    return y >= client.bottom - GRIP_HEIGHT && y < client.bottom;
}

}

void DisplayPanel::showPointer(HWND edit, LPARAM lParam) {
    POINT point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    ScreenToClient(edit, &point);
    SetCursor(LoadCursorA(nullptr, isOnGrip(edit, point.y) ? IDC_SIZENS : IDC_ARROW));
}

void DisplayPanel::handlePress(HWND edit, LPARAM lParam) {
    gui().setFocus();
    if (!isOnGrip(edit, GET_Y_LPARAM(lParam)))
        return;
    m_resizing = true;
    SetCapture(getWindowHandle());
}

void DisplayPanel::showMenu(LPARAM position) {
    switch (m_menu.track(getWindowHandle(), GET_X_LPARAM(position), GET_Y_LPARAM(position))) {
        case IDM_DISPLAY_CLEAR: clearText(); break;
        case IDM_DISPLAY_COPY: copyText(); break;
        default: break;
    }
}

void DisplayPanel::clearText() const {
    SetWindowTextA(m_edit, "");
}

void DisplayPanel::copyText() const {
    SendMessageA(m_edit, EM_SETSEL, 0, -1);
    SendMessageA(m_edit, WM_COPY, 0, 0);
    SendMessageA(m_edit, EM_SETSEL, static_cast<WPARAM>(-1), 0);
}

int DisplayPanel::onScreen(int y) const {
    POINT point{0, y};
    ClientToScreen(getWindowHandle(), &point);
    return point.y;
}

void DisplayPanel::moveLine(int y) {
    if (m_line)
        drawLine(*m_line);
    drawLine(y);
    m_line = y;
}

// Drawing it a second time removes it.
void DisplayPanel::drawLine(int y) const {
    const RECT rect = windowRect(getWindowHandle());
    const WindowDc screen(nullptr);
    PatBlt(screen.dc(), rect.left, y, rect.right - rect.left, LINE_HEIGHT, PATINVERT);
}

// Something else has taken the mouse, or the panel is closing.
void DisplayPanel::giveResizingUp() {
    if (m_line)
        drawLine(*m_line);
    m_line.reset();
    m_resizing = false;
}

void DisplayPanel::endResizing(int y) {
    if (!m_resizing)
        return;
    giveResizingUp();
    ReleaseCapture();
    modifyHeight(DisplayText::limitHeight(y - windowRect(getWindowHandle()).top));
}

}
