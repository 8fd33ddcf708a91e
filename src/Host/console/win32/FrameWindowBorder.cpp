// The messages of the metallic border, which replace the system's own frame.
#include "Host/console/win32/FrameWindow.h"

#include <windowsx.h>

namespace Host::Console {

namespace {

LRESULT hitOf(FramePart part) {
    switch (part) {
        case FramePart::DESK: return HTCLIENT;
        case FramePart::CAPTION: return HTCAPTION;
        case FramePart::ICON: return HTSYSMENU;
        case FramePart::MINIMISE: return HTMINBUTTON;
        case FramePart::CLOSE: return HTCLOSE;
        case FramePart::OUTSIDE: return HTNOWHERE;
    }
    return HTNOWHERE;
}

bool isButton(FramePart part) {
    return part == FramePart::MINIMISE || part == FramePart::CLOSE;
}

}

bool FrameWindow::handleBorderMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    result = 0;
    switch (message) {
        case WM_NCCALCSIZE: makeRoomForBorder(*reinterpret_cast<RECT*>(lParam)); return true;
        case WM_NCPAINT: paintBorder(); return true;
        case WM_NCACTIVATE: {
            FrameLook look = m_look;
            look.isActive = wParam != FALSE;
            setLook(look);
            result = TRUE;
            return true;
        }
        case WM_NCHITTEST: result = hitOf(partAtScreenPoint(lParam)); return true;
        case WM_NCRBUTTONUP: showSystemMenu(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)); return true;
        case WM_NCLBUTTONDBLCLK:
            if (wParam == HTSYSMENU)
                PostMessageA(m_window, WM_SYSCOMMAND, SC_CLOSE, 0);
            return wParam == HTCAPTION || wParam == HTSYSMENU;
        default: return handleBorderButtons(message, wParam, lParam);
    }
}

// The first (or only) rectangle is the window's; it becomes the desk's.
void FrameWindow::makeRoomForBorder(RECT& rect) {
    const Rect desk = FrameLayout(rect.right - rect.left, rect.bottom - rect.top).desk();
    rect = {rect.left + desk.left, rect.top + desk.top, rect.left + desk.right, rect.top + desk.bottom};
}

// The two buttons light up under the mouse, and act when released where they were pressed.
bool FrameWindow::handleBorderButtons(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_NCMOUSEMOVE: hoverBorder(partAtScreenPoint(lParam)); return false;
        case WM_NCMOUSELEAVE:
            if (m_look.pressed == FramePart::OUTSIDE)
                setButtons(FramePart::OUTSIDE, FramePart::OUTSIDE);
            return false;
        case WM_NCLBUTTONDOWN: return pressBorder(wParam, partAtScreenPoint(lParam));
        case WM_MOUSEMOVE: return dragBorderButton({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
        case WM_LBUTTONUP: return releaseBorderButton();
        case WM_CAPTURECHANGED: setButtons(FramePart::OUTSIDE, FramePart::OUTSIDE); return false;
        default: return false;
    }
}

void FrameWindow::setButtons(FramePart hovered, FramePart pressed) {
    FrameLook look = m_look;
    look.hovered = hovered;
    look.pressed = pressed;
    setLook(look);
}

void FrameWindow::hoverBorder(FramePart part) {
    setButtons(isButton(part) ? part : FramePart::OUTSIDE, m_look.pressed);
    TRACKMOUSEEVENT track{sizeof track, TME_LEAVE | TME_NONCLIENT, m_window, 0};
    TrackMouseEvent(&track);
}

bool FrameWindow::pressBorder(WPARAM hit, FramePart part) {
    if (hit == HTSYSMENU) {
        constexpr int GAP = 2;
        const Rect icon = layout().icon();
        RECT window;
        GetWindowRect(m_window, &window);
        showSystemMenu(window.left + icon.left, window.top + icon.bottom + GAP);
        return true;
    }
    if (!isButton(part))
        return false;
    SetForegroundWindow(m_window);
    SetCapture(m_window);
    setButtons(part, part);
    return true;
}

bool FrameWindow::dragBorderButton(POINT point) {
    if (m_look.pressed == FramePart::OUTSIDE)
        return false;
    ClientToScreen(m_window, &point);
    const FramePart part = partAtScreenPoint(MAKELPARAM(point.x, point.y));
    setButtons(part == m_look.pressed ? part : FramePart::OUTSIDE, m_look.pressed);
    return true;
}

bool FrameWindow::releaseBorderButton() {
    if (m_look.pressed == FramePart::OUTSIDE)
        return false;
    const FramePart chosen = m_look.hovered == m_look.pressed ? m_look.pressed : FramePart::OUTSIDE;
    setButtons(FramePart::OUTSIDE, FramePart::OUTSIDE);
    ReleaseCapture();
    if (chosen == FramePart::CLOSE)
        PostMessageA(m_window, WM_SYSCOMMAND, SC_CLOSE, 0);
    else if (chosen == FramePart::MINIMISE)
        PostMessageA(m_window, WM_SYSCOMMAND, SC_MINIMIZE, 0);
    return true;
}

FrameLayout FrameWindow::layout() const {
    RECT rect;
    GetWindowRect(m_window, &rect);
    return {rect.right - rect.left, rect.bottom - rect.top};
}

FramePart FrameWindow::partAtScreenPoint(LPARAM lParam) const {
    RECT rect;
    GetWindowRect(m_window, &rect);
    return layout().partAt(GET_X_LPARAM(lParam) - rect.left, GET_Y_LPARAM(lParam) - rect.top);
}

void FrameWindow::setLook(const FrameLook& look) {
    if (look == m_look)
        return;
    m_look = look;
    paintBorder();
}

void FrameWindow::paintBorder() {
    if (!m_options.useSkinBorder || !IsWindowVisible(m_window) || IsIconic(m_window))
        return;
    const HDC dc = GetWindowDC(m_window);
    m_border.paint(dc, layout(), m_look, m_title, m_smallIcon);
    ReleaseDC(m_window, dc);
}

void FrameWindow::showSystemMenu(int x, int y) {
    const HMENU menu = GetSystemMenu(m_window, FALSE);
    EnableMenuItem(menu, SC_RESTORE, MF_BYCOMMAND | (IsIconic(m_window) ? MF_ENABLED : MF_GRAYED));
    const BOOL command = TrackPopupMenu(menu, TPM_RETURNCMD | TPM_RIGHTBUTTON, x, y, 0, m_window, nullptr);
    if (command)
        PostMessageA(m_window, WM_SYSCOMMAND, static_cast<WPARAM>(command), 0);
}

}
