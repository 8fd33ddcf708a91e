// Mouse and wheel on the time knob, and the field and menu that they open.
#include "Backend/midi/TimeInterval.h"
#include "Gui/MirelGuiIF.h"
#include "Gui/Rules/values/ValueWheel.h"
#include "Gui/Utils/skin/GdiManager.h"
#include "Gui/Utils/skin/PopupMenu.h"
#include "Gui/Utils/widgets/TimeIntervalCtl.h"
#include "Gui/Utils/windows/Wheel.h"

#include <algorithm>

namespace Gui {

using Backend::TimeInterval;
using Backend::TimeIntervalType;

namespace {

constexpr UINT_PTR MENU_TIMER = 1;
constexpr UINT MENU_TIMER_MILLISECONDS = 20;
constexpr int MENU_ROWS = 64;
constexpr int LARGE_STEP = 10;

}

void TimeIntervalCtl::handleLeftButtonDown(POINT point) {
    if (m_lock.takeOwnPress() || m_lock.endByButton())
        return;
    m_gui->setFocus();
    const RECT knob = knobSquare();
    const RECT value = valueBox();
    const RECT type = typeBox();
    if (PtInRect(&knob, point))
        m_lock.startHeld(m_windowHandle, point.y, getPosition());
    else if (PtInRect(&value, point))
        openValue();
    else if (PtInRect(&type, point))
        flipType();
}

void TimeIntervalCtl::handleMiddleButtonDown(POINT point) {
    if (m_lock.end())
        return;
    m_gui->setFocus();
    const RECT knob = knobSquare();
    if (PtInRect(&knob, point))
        m_lock.startFree(m_windowHandle, point.y, getPosition(), m_gui->getGdiManager().getRedCursor());
}

void TimeIntervalCtl::drag(int y) {
    if (!m_lock.isLocked())
        return;
    const int sensitivity = m_gui->getRegistrySettings().getMouseSensitivity();
    setValue(TimeIntervalScale::valueAfterDrag(m_type.getMode(), range(), m_lock.getStartValue(), m_lock.getDistance(y),
                                               sensitivity));
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
    // Messages handled while the menu showed may have destroyed the window, and this object with it.
    if (!IsWindow(window))
        return;
    // The click that closed the menu may have been on the box, and arrives only now.
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
    // Marking an item renumbers all of them from 1; without a mark this must happen too.
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
