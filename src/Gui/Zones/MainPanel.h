#pragma once

#include "Gui/ResourceIds.h"
#include "Gui/Utils/SkinPanel.h"
#include "Gui/Utils/windows/Redraw.h"

namespace Gui::Zones {

// The bars of the zones. [gui]
class MainPanel : public SkinPanel {
public:
    explicit MainPanel(MirelGuiIF& gui) : SkinPanel(gui, IDD_ZONE_MAIN) {}

    // Call this when the zones have changed.
    void refreshRows() { redraw(getWindowHandle()); }
};

}
