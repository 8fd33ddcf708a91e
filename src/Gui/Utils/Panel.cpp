#include "Gui/Utils/Panel.h"

#include "Backend/core/trace/Trace.h"
#include "Gui/Utils/windows/WindowClass.h"
#include "Gui/Utils/windows/WindowProcedure.h"

#include <algorithm>
#include <string>

namespace Gui {

namespace {

constexpr const char* CLASS_NAME = "TamselPanel2008";
constexpr const char* SOURCE = "src\\Gui\\Utils\\Panel";
constexpr int FRAME_WIDTH = 4;  // Of the window around the root: how much wider it is than the widest panel.

void trace(long line, const std::string& function, const char* text) {
    Backend::Trace::channel().trace(SOURCE, line, "Panel::" + function, text);
}

void check(long line, const std::string& function, const char* expression, bool condition) {
    Backend::Trace::channel().traceAssert(SOURCE, line, "Panel::" + function, expression, condition);
}

RECT rectOf(HWND window) {
    RECT rect{};
    GetWindowRect(window, &rect);
    return rect;
}

int heightOf(HWND window) {
    const RECT rect = rectOf(window);
    return rect.bottom - rect.top;
}

HINSTANCE registerClassOnce(HINSTANCE module, WNDPROC procedure) {
    static const HINSTANCE registered =
        registerWindowClass(CLASS_NAME, module, procedure, reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    return registered;
}

}

Panel::~Panel() {
    // If the window outlives its panel, its messages no longer come here.
    forget(m_windowHandle, "PanelPtr", this);
}

void Panel::createWnd(HINSTANCE module, HWND parentWindow) {
    trace(__LINE__, "createWnd", "IN");
    m_panelCount = 0;
    m_instanceHandle = module;
    check(__LINE__, "createWnd", "m_instanceHandle != NULL", m_instanceHandle != nullptr);
    const HINSTANCE classModule = registerClassOnce(module, windowProcedure);

    HWND hp = parentWindow;
    if (hp == nullptr) {
        check(__LINE__, "createWnd", "m_parent != NULL", m_parent != nullptr);
        if (m_parent)
            hp = m_parent->m_windowHandle;
    }
    check(__LINE__, "createWnd", "IsWindow(hp)", IsWindow(hp) != FALSE);
    if (m_dialogId > 0)
        createDialogWindow(hp);
    else
        createPlainWindow(hp, classModule);
    trace(__LINE__, "createWnd", "OUT");
}

void Panel::createDialogWindow(HWND parentWindow) {
    m_windowHandle = CreateDialogParamA(m_instanceHandle, MAKEINTRESOURCEA(m_dialogId), parentWindow, dialogProcedure,
                                        reinterpret_cast<LPARAM>(this));
    check(__LINE__, "createWnd", "IsWindow(m_windowHandle)", IsWindow(m_windowHandle) != FALSE);
    if (!m_windowHandle)
        return;
    setObject(m_windowHandle, "THIS", this);
    const LONG_PTR style = GetWindowLongPtrA(m_windowHandle, GWL_STYLE);
    SetWindowLongPtrA(m_windowHandle, GWL_STYLE, m_hasBorder ? style | WS_BORDER : style & ~LONG_PTR{WS_BORDER});
    const BOOL rval =
        SetWindowPos(m_windowHandle, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_FRAMECHANGED);
    check(__LINE__, "createWnd", "rval != FALSE", rval != FALSE);
    const RECT rect = rectOf(m_windowHandle);
    m_width = rect.right - rect.left;
    m_height = rect.bottom - rect.top;
}

void Panel::createPlainWindow(HWND parentWindow, HINSTANCE classModule) {
    m_width = 0;
    m_height = 0;
    const DWORD style = m_hasBorder ? WS_CHILD | WS_BORDER : WS_CHILD;
    m_windowHandle = CreateWindowExA(0, CLASS_NAME, "", style, 0, 0, 0, 0, parentWindow, nullptr, classModule, this);
    check(__LINE__, "createWnd", "IsWindow(m_windowHandle)", IsWindow(m_windowHandle) != FALSE);
    if (m_windowHandle)
        setObject(m_windowHandle, "THIS", this);
}

bool Panel::add(Panel* panel) {
    trace(__LINE__, "add", "IN");
    if (m_panelCount >= MAX_PANELS) {
        trace(__LINE__, "add", "OUT1");
        return false;
    }
    if (m_dialogId > 0) {
        trace(__LINE__, "add", "OUT2");
        return false;
    }
    m_panels[static_cast<std::size_t>(m_panelCount)] = panel;
    panel->m_index = m_panelCount;
    ++m_panelCount;
    panel->m_parent = this;
    check(__LINE__, "add", "m_instanceHandle != NULL", m_instanceHandle != nullptr);
    check(__LINE__, "add", "IsWindow(m_windowHandle)", IsWindow(m_windowHandle) != FALSE);
    panel->createWnd(m_instanceHandle, m_windowHandle);
    trace(__LINE__, "add", "OUT");
    return true;
}

void Panel::showWnd(bool show) {
    if (isVisible() == show)
        return;
    // A panel's own spacing disappears with it.
    const int old = m_height;
    updateSpacing(show, false);
    ShowWindow(m_windowHandle, show ? SW_SHOWNORMAL : SW_HIDE);
    adjustParent(m_index, show ? m_height : -old);
}

void Panel::modifyHeight(int newHeight) {
    const RECT rect = rectOf(m_windowHandle);
    const int delta = newHeight - (rect.bottom - rect.top);
    m_height += delta;
    const BOOL rval =
        SetWindowPos(m_windowHandle, nullptr, 0, 0, rect.right - rect.left, newHeight, SWP_NOMOVE | SWP_NOZORDER);
    check(__LINE__, "modifyHeight", "rval != FALSE", rval != FALSE);
    if (isVisible())
        adjustParent(m_index, delta);
}

bool Panel::isVisible() const {
    return (GetWindowLongPtrA(m_windowHandle, GWL_STYLE) & WS_VISIBLE) != 0;
}

bool Panel::anyPanelVisible() const {
    return anyOtherPanelVisible(nullptr);
}

bool Panel::anyOtherPanelVisible(const Panel* panel) const {
    return std::any_of(m_panels.begin(), m_panels.begin() + m_panelCount,
                       [panel](const Panel* other) { return other != panel && other->isVisible(); });
}

void Panel::adjustParent(int index, int delta) {
    if (m_parent)
        m_parent->adjustChildren(index, delta);
    else if (isVisible())
        adjustParentWindow(delta);
}

void Panel::adjustParentWindow(int delta) {
    const HWND window = GetParent(m_windowHandle);
    if (!window)
        return;
    setNumber(window, "MYSIZE", 1);
    const BOOL rval = SetWindowPos(window, nullptr, 0, 0, widestPanel() + FRAME_WIDTH, heightOf(window) + delta,
                                   SWP_NOMOVE | SWP_NOZORDER | SWP_NOSENDCHANGING | SWP_DEFERERASE);
    check(__LINE__, "adjustParent", "rval != FALSE", rval != FALSE);
}

void Panel::adjustChildren(int index, int delta) {
    // Hidden panels move too, so that each is always where it will show.
    for (int i = index + 1; i < m_panelCount; ++i)
        m_panels[static_cast<std::size_t>(i)]->moveWnd(0, delta);
    if (isVisible())
        adjustParent(m_index, delta);
    changeSize(delta);
}

void Panel::changeSize(int delta) {
    const int width = widestPanel();
    setNumber(m_windowHandle, "MYSIZE", 1);
    const BOOL rval = SetWindowPos(m_windowHandle, nullptr, 0, 0, width, heightOf(m_windowHandle) + delta,
                                   SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    check(__LINE__, "changeSize", "rval != FALSE", rval != FALSE);
    m_height += delta;
    m_width = width;
}

int Panel::widestPanel() const {
    int width = 0;
    for (int i = 0; i < m_panelCount; ++i)
        width = std::max(width, m_panels[static_cast<std::size_t>(i)]->m_width);
    return width;
}

void Panel::moveWnd(int, int dy) {
    const RECT rect = rectOf(m_windowHandle);
    POINT corner{rect.left, rect.top};
    ScreenToClient(GetParent(m_windowHandle), &corner);
    const BOOL rval = SetWindowPos(m_windowHandle, nullptr, corner.x, corner.y + dy, 0, 0,
                                   SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
    check(__LINE__, "moveWnd", "rval != FALSE", rval != FALSE);
}

void Panel::currentFirstToNormal() {
    const int first = firstVisibleAfter(-1);
    if (first < 0)
        return;
    check(__LINE__, "currentFirstToNormal", "first < m_panelCount", first < m_panelCount);
    changeSpacingOf(first, SPACING);
}

void Panel::nextVisibleToFirst(int index) {
    const int next = firstVisibleAfter(index);
    if (next < 0)
        return;
    check(__LINE__, "nextVisibleToFirst", "next < m_panelCount", next < m_panelCount);
    changeSpacingOf(next, -SPACING);
}

void Panel::changeSpacingOf(int index, int delta) {
    Panel& panel = *m_panels[static_cast<std::size_t>(index)];
    if (panel.m_noSpacing)
        return;
    panel.m_height += delta;
    for (int i = index; i < m_panelCount; ++i)
        m_panels[static_cast<std::size_t>(i)]->moveWnd(0, delta);
    changeSize(delta);
    if (isVisible())
        adjustParent(m_index, delta);
}

int Panel::firstVisibleAfter(int index) const {
    for (int i = index + 1; i < m_panelCount; ++i) {
        const Panel& panel = *m_panels[static_cast<std::size_t>(i)];
        if (panel.isVisible() && panel.m_height > 0)
            return i;
    }
    return -1;
}

bool Panel::hasVisibleAbove() const {
    if (!m_parent)
        return false;
    for (int i = 0; i < m_parent->m_panelCount; ++i) {
        const Panel& panel = *m_parent->m_panels[static_cast<std::size_t>(i)];
        if (panel.m_windowHandle == m_windowHandle)
            return false;
        if (panel.isVisible() && panel.m_height > 0)
            return true;
    }
    return false;
}

void Panel::updateSpacing(bool show, bool force) {
    const int change = show ? SPACING : -SPACING;
    for (Panel* panel = this; !panel->m_noSpacing; panel = panel->m_parent, force = true) {
        Panel* const parent = panel->m_parent;
        // A plain container in which nothing shows takes no space.
        if (panel->firstVisibleAfter(-1) >= 0 || panel->m_dialogId > 0 || force) {
            if (panel->hasVisibleAbove()) {
                panel->m_height += change;
                panel->moveWnd(0, change);
                if (force)
                    panel->adjustParent(panel->m_index, change);
            } else if (parent) {
                if (show)
                    parent->currentFirstToNormal();
                else
                    parent->nextVisibleToFirst(panel->m_index);
            }
        }
        // Showing the first panel in a container, or hiding the last, shows or hides the container.
        if (!parent || !parent->isVisible() || parent->anyOtherPanelVisible(panel))
            return;
    }
}

LRESULT Panel::wndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return DefWindowProcA(window, message, wParam, lParam);
}

INT_PTR Panel::dlgProc(HWND, UINT, WPARAM, LPARAM) {
    return 0;
}

Panel* Panel::ownerOf(HWND window, UINT message, UINT creation, const void* self) {
    if (message == creation) {
        setObject(window, "PanelPtr", self);
        static_cast<Panel*>(const_cast<void*>(self))->m_windowHandle = window;
    }
    auto* const panel = getObject<Panel>(window, "PanelPtr");
    if (panel && message == WM_NCDESTROY) {
        // The system may reuse the handle for another window.
        RemovePropA(window, "THIS");
        RemovePropA(window, "PanelPtr");
        panel->m_windowHandle = nullptr;
    }
    return panel;
}

LRESULT CALLBACK Panel::windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const void* self = message == WM_CREATE ? reinterpret_cast<CREATESTRUCTA*>(lParam)->lpCreateParams : nullptr;
    Panel* const panel = ownerOf(window, message, WM_CREATE, self);
    if (!panel)
        return DefWindowProcA(window, message, wParam, lParam);
    return withoutExceptions([&] { return panel->wndProc(window, message, wParam, lParam); });
}

INT_PTR CALLBACK Panel::dialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    Panel* const panel = ownerOf(window, message, WM_INITDIALOG, reinterpret_cast<const void*>(lParam));
    return panel ? withoutExceptions([&] { return panel->dlgProc(window, message, wParam, lParam); }) : 0;
}

}
