#include "Gui/Utils/widgets/Button.h"

#include "Gui/MirelGuiIF.h"
#include "Gui/Rules/places/ButtonLook.h"
#include "Gui/Utils/skin/ButtonFill.h"
#include "Gui/Utils/skin/DrawnText.h"
#include "Gui/Utils/skin/GdiManager.h"
#include "Gui/Utils/skin/SkinProperties.h"
#include "Gui/Utils/widgets/Placeholder.h"
#include "Gui/Utils/windows/DeviceContexts.h"
#include "Gui/Utils/windows/Redraw.h"
#include "Gui/Utils/windows/WindowClass.h"
#include "Gui/Utils/windows/WindowProcedure.h"
#include "Platform/Shell.h"

namespace Gui {

namespace {

constexpr const char* CLASS_NAME = "MIRELButton_Tamsel2008";
constexpr const char* OBJECT = "Button";
constexpr int LONE_TOP = 6;
constexpr int LONE_WIDTH = 29;
constexpr int LONE_HEIGHT = 20;

}

Button::Button(MirelGuiIF& gui, Listener* listener, Kind kind, bool reportOnRelease)
    : m_listener(listener), m_gui(&gui), m_isToggle(kind == Kind::toggle), m_reportOnRelease(reportOnRelease) {}

Button::~Button() {
    forget(m_windowHandle, OBJECT, this);
}

HINSTANCE Button::registerClassOnce(HINSTANCE module) {
    static const HINSTANCE registered = registerWindowClass(CLASS_NAME, module, windowProcedure);
    return registered;
}

void Button::create(HWND window) {
    const Placeholder placeholder(window);
    const HINSTANCE module = registerClassOnce(static_cast<HINSTANCE>(Platform::getModuleInstance()));
    m_id = placeholder.id;
    m_rect = placeholder.rect;
    m_caption = placeholder.caption;
    m_defaultFont = reinterpret_cast<HFONT>(SendMessageA(window, WM_GETFONT, 0, 0));
    m_windowHandle = placeholder.replace(CLASS_NAME, module, this);
}

void Button::create(const std::string& caption, int x, HWND parent, int id, HINSTANCE module) {
    const HINSTANCE classModule = registerClassOnce(module);
    m_id = id;
    m_rect = {x, LONE_TOP, x + LONE_WIDTH, LONE_TOP + LONE_HEIGHT};
    m_caption = caption;
    m_windowHandle = CreateWindowExA(0, CLASS_NAME, caption.c_str(), WS_CHILD, x, LONE_TOP, LONE_WIDTH, LONE_HEIGHT,
                                     parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), classModule, this);
}

void Button::setState(bool state) {
    m_state = state;
    redraw(m_windowHandle);
}

void Button::setCaption(const std::string& caption) {
    m_caption = caption;
    SetWindowTextA(m_windowHandle, caption.c_str());
    redraw(m_windowHandle);
}

void Button::report() {
    if (m_listener)
        m_listener->buttonChanged(m_id, m_state);
}

void Button::onLeftButtonDown() {
    setState(!m_isToggle || !m_state);
    // A button that is on only while held needs its release, wherever that happens.
    if (m_reportOnRelease || !m_isToggle)
        SetCapture(m_windowHandle);
    if (!m_reportOnRelease)
        report();
}

void Button::handleLeftButtonUp() {
    // Ignores a press that began elsewhere.
    const bool wasPressed = GetCapture() == m_windowHandle;
    if (!m_isToggle)
        setState(false);
    if (wasPressed)
        ReleaseCapture();
    if (!wasPressed || !m_reportOnRelease)
        return;
    POINT pointer{};
    RECT rect{};
    if (GetCursorPos(&pointer) && GetWindowRect(m_windowHandle, &rect) && PtInRect(&rect, pointer))
        report();
}

LRESULT CALLBACK Button::windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return handOver(OBJECT, &Button::wndProc, window, message, wParam, lParam);
}

LRESULT Button::wndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_LBUTTONDOWN:
            m_gui->setFocus();
            onLeftButtonDown();
            return 0;
        case WM_LBUTTONUP: handleLeftButtonUp(); return 0;
        case WM_CAPTURECHANGED:
            // Something else took the mouse, and with it the release.
            if (!m_isToggle && reinterpret_cast<HWND>(lParam) != window)
                setState(false);
            return 0;
        case WM_RBUTTONDOWN: return 0;
        case WM_NCHITTEST: m_gui->displayHelp(window); break;
        case WM_ERASEBKGND: return 1;
        case WM_PAINT: paint(); return 0;
        case WM_ENABLE: redraw(window); break;
        case WM_NCDESTROY: m_windowHandle = nullptr; break;
        default: break;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

void Button::paint() {
    const PaintScope scope(m_windowHandle);
    const HDC dc = scope.dc();
    RECT rect{};
    GetClientRect(m_windowHandle, &rect);
    FillRect(dc, &rect, fillBrush().handle());
    if (getFlag(m_windowHandle, SkinProperties::GRAY_TEXT))
        fillOnAndOff(dc, rect, m_gui->getGdiManager());
    const HFONT font = fontFor(rect.right, rect.bottom);
    const SelectScope fontScope(dc, font ? font : GetStockObject(SYSTEM_FONT));
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, textColour());
    if (m_caption == "+" || (m_caption == "-" && rect.bottom < SMALL_BUTTON_HEIGHT))
        OffsetRect(&rect, 0, -1);
    drawText(dc, m_caption, rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

HFONT Button::fontFor(int width, int height) const {
    const GdiManager& gdi = m_gui->getGdiManager();
    if (isSmallButton(width, height))
        return isSign(m_caption) ? gdi.getFont5().handle() : gdi.getFont3().handle();
    return m_font ? m_font->handle() : m_defaultFont;
}

const WindowsLib::Brush& Button::fillBrush() const {
    const GdiManager& gdi = m_gui->getGdiManager();
    if (!IsWindowEnabled(m_windowHandle))
        return gdi.getDisabledButtonBrush();
    if (const auto* colour = getObject<WindowsLib::Brush>(m_windowHandle, SkinProperties::COLOUR))
        return *colour;
    const bool on = m_state || getFlag(m_windowHandle, SkinProperties::CHECKED);
    return on ? gdi.getSelectedButtonBrush() : gdi.getUnselectedButtonBrush();
}

COLORREF Button::textColour() const {
    if (getFlag(m_windowHandle, SkinProperties::SELECTED))
        return m_gui->getGdiManager().getSelectedButtonBrush().colour();
    return m_state && !IsWindowEnabled(m_windowHandle) ? GdiManager::WHITE : GdiManager::BLACK;
}

}
