// What mouse and wheel do to the time knob, and the field and the menu that they open.
#include "Backend/midi/TimeInterval.h"
#include "Gui/MirelGuiIF.h"
#include "Gui/Rules/values/ValueWheel.h"
#include "Gui/Utils/skin/GdiManager.h"
#include "Gui/Utils/skin/PopupMenu.h"
#include "Gui/Utils/widgets/TimeIntervalCtl.h"
#include "Gui/Utils/windows/Wheel.h"
#include "Gui/Utils/windows/WindowProperties.h"

#include <algorithm>
#include <utility>

namespace Gui {

using Backend::TimeInterval;
using Backend::TimeIntervalType;

namespace {

constexpr const char* CAPTURED = "CAPTURED";            // The value follows the mouse.
constexpr const char* CAPTURE_POSITION = "CAPTUREPOS";  // Its height at the start, and the offset.
constexpr const char* CAPTURE_VALUE = "CAPTUREVAL";     // The knob's position at the start.
constexpr const char* OWN_PRESS = "MYLDOWN";            // The next press is the one that this code sent.
constexpr int POSITION_OFFSET = 2000;
constexpr UINT_PTR MENU_TIMER = 1;
constexpr UINT MENU_TIMER_MILLISECONDS = 20;
constexpr int MENU_ROWS = 64;
constexpr int LARGE_STEP = 10;

// The button that means "left" to programs, which a left-handed user's system exchanges.
bool sendLeftButton(bool down) {
    const bool swapped = GetSystemMetrics(SM_SWAPBUTTON) != 0;
    INPUT input{};
    input.type = INPUT_MOUSE;
    if (down)
        input.mi.dwFlags = swapped ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_LEFTDOWN;
    else
        input.mi.dwFlags = swapped ? MOUSEEVENTF_RIGHTUP : MOUSEEVENTF_LEFTUP;
    return SendInput(1, &input, sizeof input) == 1;
}

void restoreCursor() {
    SetCursor(LoadCursorA(nullptr, IDC_ARROW));
}

}

void TimeIntervalCtl::handleLeftButtonDown(POINT point) {
    if (RemovePropA(m_windowHandle, OWN_PRESS) != nullptr)
        return;
    if (endLock())
        return;
    m_gui->setFocus();
    const RECT value = valueBox();
    const RECT type = typeBox();
    if (startLock(point))
        return;
    if (PtInRect(&value, point))
        openValue();
    else if (PtInRect(&type, point))
        flipType();
}

void TimeIntervalCtl::handleMiddleButtonDown(POINT point) {
    if (endLock()) {
        // No real press will ever end the one that was sent at the start.
        sendLeftButton(false);
        return;
    }
    m_gui->setFocus();
    m_isLockedByMiddle = startLock(point);
    if (m_isLockedByMiddle)
        SetCursor(m_gui->getGdiManager().getRedCursor().handle());
}

// For as long as a button is down, the mouse stays with this window also beyond the program's own.
bool TimeIntervalCtl::startLock(POINT point) {
    const RECT knob = knobSquare();
    if (!PtInRect(&knob, point))
        return false;
    setNumber(m_windowHandle, CAPTURED, 1);
    setNumber(m_windowHandle, CAPTURE_POSITION, point.y + POSITION_OFFSET);
    setNumber(m_windowHandle, CAPTURE_VALUE, getPosition());
    SetCapture(m_windowHandle);
    if (sendLeftButton(true))
        setNumber(m_windowHandle, OWN_PRESS, 1);
    return true;
}

bool TimeIntervalCtl::endLock() {
    if (RemovePropA(m_windowHandle, CAPTURED) == nullptr)
        return false;
    m_isLockedByMiddle = false;
    ReleaseCapture();
    restoreCursor();
    return true;
}

void TimeIntervalCtl::handleLeftButtonUp() {
    m_isLockedByMiddle = false;
    if (RemovePropA(m_windowHandle, CAPTURED) != nullptr)
        ReleaseCapture();
    // After a click so short that it ends before the press that was sent arrives, nothing else would end that one.
    if (getFlag(m_windowHandle, OWN_PRESS))
        sendLeftButton(false);
}

void TimeIntervalCtl::handleCaptureChanged(HWND capturer) {
    // Something else took the mouse away.
    if (capturer == m_windowHandle || RemovePropA(m_windowHandle, CAPTURED) == nullptr)
        return;
    restoreCursor();
    if (std::exchange(m_isLockedByMiddle, false))
        sendLeftButton(false);
}

void TimeIntervalCtl::drag(int y) {
    if (!getFlag(m_windowHandle, CAPTURED))
        return;
    const int pixelsUp = static_cast<int>(getNumber(m_windowHandle, CAPTURE_POSITION)) - POSITION_OFFSET - y;
    const int start = static_cast<int>(getNumber(m_windowHandle, CAPTURE_VALUE));
    const int sensitivity = m_gui->getRegistrySettings().getMouseSensitivity();
    setValue(TimeIntervalScale::valueAfterDrag(m_type.getMode(), range(), start, pixelsUp, sensitivity));
}

void TimeIntervalCtl::handleWheel(WPARAM wParam, POINT point) {
    ScreenToClient(m_windowHandle, &point);
    const RECT value = valueBox();
    const RECT knob = knobSquare();
    int steps = getWheelSteps(wParam);
    if (steps == 0)
        return;
    if (isShiftDown(wParam))
        steps *= LARGE_STEP;
    if (PtInRect(&value, point))
        setValue(TimeIntervalScale::valueAfterSteps(m_type.getMode(), range(), m_value, steps));
    else if (PtInRect(&knob, point))
        setValue(TimeIntervalScale::valueAfterKnobSteps(m_type.getMode(), range(), m_value, steps));
}

void TimeIntervalCtl::openValue() {
    if (m_type.getMode() == TimeIntervalType::ppq)
        openEdit();
    else
        openMenu();
}

void TimeIntervalCtl::openEdit() {
    const RECT box = valueBox();
    m_edit.open(m_windowHandle, box.left + 1, box.top + 3, 43, 16, m_gui->getGdiManager().getFont4().handle(), m_value);
}

void TimeIntervalCtl::editEnded(bool taken, std::int32_t value, bool byKey) {
    if (taken)
        setValue(value);
    if (byKey)
        m_gui->setFocus();
}

void TimeIntervalCtl::openMenu() {
    if (m_menuShowing)
        return;
    m_menuShowing = true;
    const HWND window = m_windowHandle;
    const int index = chooseFromMenu();
    // What came while the menu showed may have destroyed the window, and this object with it.
    if (!IsWindow(window))
        return;
    // The click that closed the menu may have been one on the box, which comes only now.
    SetTimer(m_windowHandle, MENU_TIMER, MENU_TIMER_MILLISECONDS, nullptr);
    if (index > 0)
        setValue(TimeInterval::fromIndex(index).getPpq());
}

int TimeIntervalCtl::chooseFromMenu() {
    const auto [first, last] =
        std::minmax({TimeInterval(m_min).getNearestIndex(), TimeInterval(m_max).getNearestIndex()});
    m_intervalMenu = std::make_unique<PopupMenu>(m_gui->getGdiManager());
    m_intervalMenu->setRowsPerColumn(MENU_ROWS);
    for (int index = last; index >= first; --index) {
        const TimeInterval length = TimeInterval::fromIndex(index);
        m_intervalMenu->add(length.toString(), length.getPpq());
    }
    const int current = TimeInterval(m_value).getIndex();
    m_intervalMenu->select(current != 0 && !m_invalid ? last - current : -1);
    // Marking an item numbers all of them anew, from 1; let it be so without a mark too.
    m_intervalMenu->rebuild();
    RECT box = valueBox();
    MapWindowPoints(m_windowHandle, nullptr, reinterpret_cast<POINT*>(&box), 2);
    const int chosen = m_intervalMenu->track(m_dialog, box.left, box.bottom);
    return chosen > 0 ? last - (chosen - 1) : 0;
}

void TimeIntervalCtl::handleTimer(WPARAM timer) {
    KillTimer(m_windowHandle, timer);
    m_menuShowing = false;
}

}
