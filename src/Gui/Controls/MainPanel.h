#pragma once

#include "Gui/ResourceIds.h"
#include "Gui/Utils/SkinPanel.h"
#include "Gui/Utils/windows/Redraw.h"

namespace Gui::Controls {

// The grid of controls. [gui]
class MainPanel : public SkinPanel {
public:
    explicit MainPanel(MirelGuiIF& gui) : SkinPanel(gui, IDD_CONTROL_MAIN) {}

    // The controls have changed, or what of them is marked.
    void refreshGrid() { redraw(getWindowHandle()); }
};

}
