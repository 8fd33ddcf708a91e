#include "Gui/Utils/widgets/KnobPainter.h"

#include "Gui/Rules/values/TimeIntervalScale.h"
#include "Gui/Utils/skin/GdiManager.h"
#include "Gui/Utils/windows/DeviceContexts.h"

#include <cmath>

namespace Gui {

namespace {

void copyPicture(HDC dc, POINT corner, int size, const WindowsLib::Bitmap& bitmap) {
    const HDC picture = CreateCompatibleDC(dc);
    {
        const SelectScope scope(picture, bitmap.handle());
        BitBlt(dc, corner.x, corner.y, size, size, picture, 0, 0, SRCCOPY);
    }
    DeleteDC(picture);
}

}

KnobPainter::KnobPainter(GdiManager& gdi, COLORREF background, int diameter)
    : m_gdi(gdi),
      m_diameter(diameter),
      m_enabled(gdi.getKnob(gdi.getUnusedButtonBrush().colour(), background, true, diameter)),
      m_disabled(gdi.getKnob(gdi.getDisabledButtonBrush().colour(), background, true, diameter)) {}

void KnobPainter::paint(HDC dc, POINT corner, int position, bool isEnabled) const {
    copyPicture(dc, corner, m_diameter + 1, isEnabled ? m_enabled : m_disabled);
    const double angle = TimeIntervalScale::pointerAngle(position);
    const int length = TimeIntervalScale::pointerLength(m_diameter, angle);
    const int x = corner.x + 1 + m_diameter / 2;
    const int y = corner.y + 1 + m_diameter / 2;
    const SelectScope pen(dc, (isEnabled ? m_gdi.getGreenPen() : m_gdi.getBlackPen()).handle());
    MoveToEx(dc, x, y, nullptr);
    LineTo(dc, x + static_cast<int>(std::lround(length * std::cos(angle))),
           y + static_cast<int>(std::lround(length * std::sin(angle))));
}

}
