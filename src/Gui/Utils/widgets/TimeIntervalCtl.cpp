#include "Gui/Utils/widgets/TimeIntervalCtl.h"

#include "Gui/MirelGuiIF.h"
#include "Gui/Utils/skin/GdiManager.h"
#include "Gui/Utils/skin/PopupMenu.h"
#include "Gui/Utils/widgets/Placeholder.h"
#include "Gui/Utils/windows/Redraw.h"
#include "Gui/Utils/windows/UserMessages.h"
#include "Gui/Utils/windows/WindowClass.h"
#include "Gui/Utils/windows/WindowProcedure.h"
#include "Platform/Shell.h"

#include <windowsx.h>

namespace Gui {

using Backend::TimeIntervalType;

namespace {

constexpr const char* CLASS_NAME = "TimeIntervalCtl_MirelTamsel2008";
constexpr const char* OBJECT = "TimeIntervalCtl";

POINT pointOf(LPARAM lParam) {
    return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
}

}

TimeIntervalCtl::Colours TimeIntervalCtl::standardColours(MirelGuiIF& gui) {
    const GdiManager& gdi = gui.getGdiManager();
    return {gdi.getBackroundBrush(),
            gdi.getBackroundBrush(),
            gdi.getControlBorderBrush(),
            gdi.getTextBrush(),
            gdi.getControlBorderBrush(),
            gdi.getUnselectedButtonBrush(),
            WindowsLib::Brush(GdiManager::BLACK)};
}

TimeIntervalCtl::TimeIntervalCtl(MirelGuiIF& gui, Listener* listener)
    : m_gui(&gui), m_listener(listener), m_edit(*this) {}

TimeIntervalCtl::~TimeIntervalCtl() {
    forget(m_windowHandle, OBJECT, this);
}

HINSTANCE TimeIntervalCtl::registerClassOnce(HINSTANCE module) {
    static const HINSTANCE registered = registerWindowClass(CLASS_NAME, module, windowProcedure);
    return registered;
}

void TimeIntervalCtl::create(HWND window, const Colours& colours, int id) {
    Placeholder placeholder(window);
    placeholder.rect.right = placeholder.rect.left + WIDTH;
    placeholder.rect.bottom = placeholder.rect.top + HEIGHT;
    if (id != 0)
        placeholder.id = id;
    m_colours = std::make_unique<Colours>(colours);
    m_knob.emplace(m_gui->getGdiManager(), colours.background.colour(), m_diameter);
    m_dialog = placeholder.parent;
    const HINSTANCE module = registerClassOnce(static_cast<HINSTANCE>(Platform::getModuleInstance()));
    m_windowHandle = placeholder.replace(CLASS_NAME, module, this);
}

void TimeIntervalCtl::setRange(std::int32_t min, std::int32_t max) {
    m_min = min;
    m_max = max;
    m_value = TimeIntervalScale::clamp(range(), m_value);
    redraw();
}

void TimeIntervalCtl::setValue(std::int32_t value, bool notify) {
    const bool same = value == m_value && !m_invalid;
    const std::int32_t old = m_value;
    m_value = TimeIntervalScale::clamp(range(), value);
    if (m_value != old || m_invalid)
        redraw();
    m_invalid = false;
    if (notify && !same && m_listener)
        m_listener->valueChanged(*this);
}

void TimeIntervalCtl::setType(TimeIntervalType::Mode type) {
    m_type = TimeIntervalType(type);
    redraw();
}

void TimeIntervalCtl::flipType() {
    setType(m_type.getMode() == TimeIntervalType::noteInterval ? TimeIntervalType::ppq
                                                               : TimeIntervalType::noteInterval);
    if (m_listener)
        m_listener->typeChanged(*this);
}

void TimeIntervalCtl::setInvalid(bool invalid) {
    m_invalid = invalid;
    redraw();
}

void TimeIntervalCtl::setKnobOnRight(bool right) {
    m_knobOnRight = right ? 1 : 0;
    redraw();
}

std::string TimeIntervalCtl::getDisplayText() const {
    return m_invalid ? "?" : TimeIntervalScale::displayText(m_type.getMode(), m_value);
}

int TimeIntervalCtl::getPosition() const {
    return TimeIntervalScale::positionOf(m_type.getMode(), range(), m_value);
}

bool TimeIntervalCtl::isEnabled() const {
    return IsWindowEnabled(m_windowHandle) != FALSE;
}

void TimeIntervalCtl::redraw() const {
    Gui::redraw(m_windowHandle);
}

RECT TimeIntervalCtl::knobSquare() const {
    const int left = m_knobOnRight ? KNOB_LEFT : 0;
    return {left, 0, left + m_diameter, m_diameter};
}

RECT TimeIntervalCtl::valueBox() const {
    constexpr int GAP = 5;
    const int left = m_knobOnRight ? 0 : m_diameter + GAP;
    return {left, 0, left + 45, 20};
}

RECT TimeIntervalCtl::typeBox() const {
    constexpr int GAP = 5;
    const int left = valueBox().right + GAP;
    return {left, 0, left + 30, 20};
}

LRESULT CALLBACK TimeIntervalCtl::windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return handOver(OBJECT, &TimeIntervalCtl::wndProc, window, message, wParam, lParam);
}

LRESULT TimeIntervalCtl::wndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_LBUTTONDOWN: handleLeftButtonDown(pointOf(lParam)); return 0;
        case WM_MBUTTONDOWN: handleMiddleButtonDown(pointOf(lParam)); return 0;
        case WM_LBUTTONUP: m_lock.released(); return 0;
        case WM_MOUSEMOVE: drag(GET_Y_LPARAM(lParam)); return 0;
        case WM_CAPTURECHANGED: m_lock.captureChanged(reinterpret_cast<HWND>(lParam)); return 0;
        case UM_MOUSEWHEEL: handleWheel(wParam, pointOf(lParam)); return 0;
        case WM_TIMER: handleTimer(wParam); return 0;
        case WM_CTLCOLOREDIT: return reinterpret_cast<LRESULT>(colourEdit(reinterpret_cast<HDC>(wParam)));
        case WM_NCHITTEST: m_gui->displayHelp(window); break;
        case WM_ERASEBKGND: return 1;
        case WM_PAINT: paint(); return 0;
        case WM_ENABLE: redraw(); break;
        case WM_NCDESTROY:
            m_windowHandle = nullptr;
            m_menuShowing = false;
            break;
        default: break;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

}
