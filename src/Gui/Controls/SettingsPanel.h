#pragma once

#include "Gui/ResourceIds.h"
#include "Gui/Utils/SkinPanel.h"

namespace Gui::Controls {

// The fields of one control or of several. [gui]
class SettingsPanel : public SkinPanel {
public:
    explicit SettingsPanel(MirelGuiIF& gui) : SkinPanel(gui, IDD_CONTROL_SETTINGS) {}

    // Fills the fields anew.
    void refresh() {}

    // The outputs have changed.
    void refreshOutputs() {}
};

}
