#pragma once

#include "Gui/Utils/windows/WindowsLib.h"

#include <windows.h>

namespace Gui {

class GdiManager;

// Paints a knob: a disc in the desk's colours with a pointer that shows a position. [gui]
class KnobPainter {
public:
    // For a background of this colour, with a diameter in pixels. The manager must outlive the painter.
    KnobPainter(GdiManager& gdi, COLORREF background, int diameter);

    // Fills a square of diameter + 1 pixels from this corner. Positions go from 0, at the lower left, clockwise to 127,
    // at the lower right.
    void paint(HDC dc, POINT corner, int position, bool isEnabled) const;

private:
    const GdiManager& m_gdi;
    int m_diameter;
    const WindowsLib::Bitmap& m_enabled;
    const WindowsLib::Bitmap& m_disabled;
};

}
