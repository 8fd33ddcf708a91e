#pragma once

#include "Gui/ResourceIds.h"
#include "Gui/Utils/SkinPanel.h"
#include "Gui/Utils/windows/Redraw.h"

namespace Gui::Layers {

// The fields of one or several layers. [gui]
class SettingsPanel : public SkinPanel {
public:
    explicit SettingsPanel(MirelGuiIF& gui) : SkinPanel(gui, IDD_LAYER_SETTINGS) {}

    // Fills the fields again.
    void refresh() { redraw(getWindowHandle(), true); }

    // Call this when the outputs have changed.
    void refreshOutputs() {}
};

}
