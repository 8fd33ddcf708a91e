#include "Gui/Layers/MainPanel.h"

#include "Gui/Rules/keyboards/RangeBars.h"
#include "Gui/Utils/windows/WindowPlace.h"

namespace Gui::Layers {

namespace {

// Where the strip of the layers begins.
constexpr int STRIP_X = 6;
constexpr int STRIP_Y = 25;

}

void MainPanel::refreshBox(int row) {
    RECT box = toWindows(LayerBars::getBox(row));
    OffsetRect(&box, STRIP_X, STRIP_Y);
    if (getWindowHandle())
        InvalidateRect(getWindowHandle(), &box, FALSE);
}

}
