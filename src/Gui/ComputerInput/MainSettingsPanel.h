#pragma once

#include "Gui/ResourceIds.h"
#include "Gui/Utils/SkinPanel.h"
#include "Gui/Utils/windows/Redraw.h"

namespace Gui::ComputerInput {

// The settings of a key as a whole. [gui]
class MainSettingsPanel : public SkinPanel {
public:
    explicit MainSettingsPanel(MirelGuiIF& gui) : SkinPanel(gui, IDD_KEY_MAIN_SETTINGS) {}

    // Fills the fields again.
    void refresh() { redraw(getWindowHandle(), true); }
};

}
