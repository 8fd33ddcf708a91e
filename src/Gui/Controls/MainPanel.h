#pragma once

#include "Gui/ResourceIds.h"
#include "Gui/Utils/SkinPanel.h"
#include "Gui/Utils/windows/Redraw.h"

namespace Gui::Controls {

// The grid of controls. [gui]
class MainPanel : public SkinPanel {
public:
    explicit MainPanel(MirelGuiIF& gui) : SkinPanel(gui, IDD_CONTROL_MAIN) {}

    // Call this when the controls or their marks have changed.
    void refreshGrid() { redraw(getWindowHandle()); }
};

}
