#pragma once

#include "Gui/ResourceIds.h"
#include "Gui/Utils/SkinPanel.h"
#include "Gui/Utils/windows/Redraw.h"

namespace Gui::Layers {

// The fields of one layer or of several. [gui]
class SettingsPanel : public SkinPanel {
public:
    explicit SettingsPanel(MirelGuiIF& gui) : SkinPanel(gui, IDD_LAYER_SETTINGS) {}

    // Fills the fields anew.
    void refresh() { redraw(getWindowHandle(), true); }

    // The outputs have changed.
    void refreshOutputs() {}
};

}
