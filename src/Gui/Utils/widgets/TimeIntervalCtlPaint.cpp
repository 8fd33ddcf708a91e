// How the time knob is drawn.
#include "Gui/MirelGuiIF.h"
#include "Gui/Utils/skin/DrawnText.h"
#include "Gui/Utils/skin/GdiManager.h"
#include "Gui/Utils/skin/PopupMenu.h"
#include "Gui/Utils/widgets/TimeIntervalCtl.h"
#include "Gui/Utils/windows/DeviceContexts.h"

namespace Gui {

using Backend::TimeIntervalType;

namespace {

void paintBox(HDC dc, RECT box, const WindowsLib::Brush& frame, const WindowsLib::Brush& fill) {
    FillRect(dc, &box, fill.handle());
    FrameRect(dc, &box, frame.handle());
}

void paintText(HDC dc, RECT box, const WindowsLib::Font& font, COLORREF colour, const std::string& text) {
    const SelectScope scope(dc, font.handle());
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, colour);
    drawText(dc, text, box, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

const char* nameOf(TimeIntervalType::Mode type) {
    switch (type) {
        case TimeIntervalType::noteInterval: return "NOTE";
        case TimeIntervalType::ppq: return "PPQ";
    }
    return "?";
}

}

void TimeIntervalCtl::paint() const {
    const PaintScope scope(m_windowHandle);
    RECT rect{};
    GetClientRect(m_windowHandle, &rect);
    const MemoryDc memory(scope.dc(), rect.right, rect.bottom);
    FillRect(memory.dc(), &rect, m_colours->background.handle());
    const RECT knob = knobSquare();
    m_knob->paint(memory.dc(), {knob.left, knob.top}, getPosition(), isEnabled());
    paintValueBox(memory.dc());
    paintTypeBox(memory.dc());
    BitBlt(scope.dc(), 0, 0, rect.right, rect.bottom, memory.dc(), 0, 0, SRCCOPY);
}

void TimeIntervalCtl::paintValueBox(HDC dc) const {
    const GdiManager& gdi = m_gui->getGdiManager();
    const WindowsLib::Brush& disabled = gdi.getDisabledButtonBrush();
    const bool enabled = isEnabled();
    paintBox(dc, valueBox(), enabled ? m_colours->valueFrame : disabled, enabled ? m_colours->boxFill : disabled);
    const WindowsLib::Brush& text = m_invalid ? gdi.getLabelDisabledBrush() : enabled ? m_colours->text : disabled;
    paintText(dc, valueBox(), gdi.getFont4(), text.colour(), getDisplayText());
}

void TimeIntervalCtl::paintTypeBox(HDC dc) const {
    const GdiManager& gdi = m_gui->getGdiManager();
    const WindowsLib::Brush& disabled = gdi.getDisabledButtonBrush();
    const bool enabled = isEnabled();
    paintBox(dc, typeBox(), enabled ? m_colours->boxFrame : disabled, enabled ? m_colours->typeBox : disabled);
    paintText(dc, typeBox(), gdi.getFont3(), (enabled ? m_colours->typeText : disabled).colour(),
              nameOf(m_type.getMode()));
}

HBRUSH TimeIntervalCtl::colourEdit(HDC dc) const {
    SetTextColor(dc, m_colours->text.colour());
    SetBkColor(dc, m_colours->boxFill.colour());
    return m_colours->boxFill.handle();
}

}
