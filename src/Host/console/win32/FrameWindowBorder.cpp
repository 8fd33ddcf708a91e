// The messages of the metallic border, which replace the system's own frame.
#include "Host/console/win32/FrameWindow.h"

#include <windowsx.h>

namespace Host::Console {

bool FrameWindow::handleBorderMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    switch (message) {
        case WM_NCCALCSIZE: {
            // The first of the rectangles, or the only one, is the window's; it becomes the desk's.
            auto& rect = *reinterpret_cast<RECT*>(lParam);
            const Rect desk = FrameLayout(rect.right - rect.left, rect.bottom - rect.top).desk();
            rect = {rect.left + desk.left, rect.top + desk.top, rect.left + desk.right, rect.top + desk.bottom};
            result = 0;
            return true;
        }
        case WM_NCPAINT:
            paintBorder();
            result = 0;
            return true;
        case WM_NCACTIVATE: {
            FrameLook look = m_look;
            look.isActive = wParam != FALSE;
            setLook(look);
            result = TRUE;
            return true;
        }
        case WM_NCHITTEST:
            switch (partAtScreenPoint(lParam)) {
                case FramePart::DESK: result = HTCLIENT; break;
                case FramePart::CAPTION: result = HTCAPTION; break;
                case FramePart::ICON: result = HTSYSMENU; break;
                case FramePart::MINIMISE: result = HTMINBUTTON; break;
                case FramePart::CLOSE: result = HTCLOSE; break;
                case FramePart::OUTSIDE: result = HTNOWHERE; break;
            }
            return true;
        case WM_NCRBUTTONUP:
            showSystemMenu(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
            result = 0;
            return true;
        case WM_NCLBUTTONDBLCLK:
            if (wParam == HTSYSMENU)
                PostMessageA(m_window, WM_SYSCOMMAND, SC_CLOSE, 0);
            result = 0;
            return wParam == HTCAPTION || wParam == HTSYSMENU;
        default: return handleBorderButtons(message, wParam, lParam, result);
    }
}

// The two buttons light up under the mouse, and act when they are let go where they were pressed.
bool FrameWindow::handleBorderButtons(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    const auto isButton = [](FramePart part) { return part == FramePart::MINIMISE || part == FramePart::CLOSE; };
    FrameLook look = m_look;
    result = 0;
    switch (message) {
        case WM_NCMOUSEMOVE: {
            const FramePart part = partAtScreenPoint(lParam);
            look.hovered = isButton(part) ? part : FramePart::OUTSIDE;
            setLook(look);
            TRACKMOUSEEVENT track{sizeof track, TME_LEAVE | TME_NONCLIENT, m_window, 0};
            TrackMouseEvent(&track);
            return false;
        }
        case WM_NCMOUSELEAVE:
            if (look.pressed == FramePart::OUTSIDE) {
                look.hovered = FramePart::OUTSIDE;
                setLook(look);
            }
            return false;
        case WM_NCLBUTTONDOWN: {
            const FramePart part = partAtScreenPoint(lParam);
            if (wParam == HTSYSMENU) {
                POINT below{layout().icon().left, layout().icon().bottom + 2};
                RECT window;
                GetWindowRect(m_window, &window);
                showSystemMenu(window.left + below.x, window.top + below.y);
                return true;
            }
            if (!isButton(part))
                return false;
            SetForegroundWindow(m_window);
            look.pressed = look.hovered = part;
            SetCapture(m_window);
            setLook(look);
            return true;
        }
        case WM_MOUSEMOVE: {
            if (look.pressed == FramePart::OUTSIDE)
                return false;
            POINT point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
            ClientToScreen(m_window, &point);
            const FramePart part = partAtScreenPoint(MAKELPARAM(point.x, point.y));
            look.hovered = part == look.pressed ? part : FramePart::OUTSIDE;
            setLook(look);
            return true;
        }
        case WM_LBUTTONUP: {
            if (look.pressed == FramePart::OUTSIDE)
                return false;
            const FramePart chosen = look.hovered == look.pressed ? look.pressed : FramePart::OUTSIDE;
            look.pressed = look.hovered = FramePart::OUTSIDE;
            setLook(look);
            ReleaseCapture();
            if (chosen == FramePart::CLOSE)
                PostMessageA(m_window, WM_SYSCOMMAND, SC_CLOSE, 0);
            else if (chosen == FramePart::MINIMISE)
                PostMessageA(m_window, WM_SYSCOMMAND, SC_MINIMIZE, 0);
            return true;
        }
        case WM_CAPTURECHANGED:
            look.pressed = look.hovered = FramePart::OUTSIDE;
            setLook(look);
            return false;
        default: return false;
    }
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
