#pragma once

#include "Gui/ResourceIds.h"
#include "Gui/Utils/SkinPanel.h"
#include "Gui/Utils/windows/Redraw.h"

namespace Gui::Controls {

// The fields of one control or of several. [gui]
class SettingsPanel : public SkinPanel {
public:
    explicit SettingsPanel(MirelGuiIF& gui) : SkinPanel(gui, IDD_CONTROL_SETTINGS) {}

    // Fills the fields anew.
    void refresh() { redraw(getWindowHandle(), true); }

    // The outputs have changed.
    void refreshOutputs() {}
};

}
