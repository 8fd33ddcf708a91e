#pragma once

#include "Gui/ResourceIds.h"
#include "Gui/Utils/SkinPanel.h"
#include "Gui/Utils/windows/Redraw.h"

namespace Gui::ComputerInput {

// What a key does when it goes down. [gui]
class DownFunctionPanel : public SkinPanel {
public:
    explicit DownFunctionPanel(MirelGuiIF& gui) : SkinPanel(gui, IDD_KEY_DOWN_FUNCTION) {}

    // Fills the fields again.
    void refresh() { redraw(getWindowHandle(), true); }

    // Call this when the outputs have changed.
    void refreshOutputs() {}
};

}
