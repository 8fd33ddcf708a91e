// The part of the skin that depends on a widget, and so belongs above both.
#include "Gui/Utils/skin/Skinner.h"
#include "Gui/Utils/widgets/TimeIntervalCtl.h"
#include "Gui/Utils/windows/Redraw.h"

namespace Gui {

void Skinner::enableControl(HWND dialog, TimeIntervalCtl& control, int labelId, bool enable) {
    enableLabel(dialog, labelId, enable);
    EnableWindow(control.getWindowHandle(), enable);
    redraw(control.getWindowHandle());
    UpdateWindow(control.getWindowHandle());
}

}
