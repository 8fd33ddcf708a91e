#pragma once

#include "Gui/ResourceIds.h"
#include "Gui/Utils/SkinPanel.h"
#include "Gui/Utils/windows/Redraw.h"

namespace Gui::ComputerInput {

// What a key does when it is released. [gui]
class UpFunctionPanel : public SkinPanel {
public:
    explicit UpFunctionPanel(MirelGuiIF& gui) : SkinPanel(gui, IDD_KEY_UP_FUNCTION) {}

    // Fills the fields again.
    void refresh() { redraw(getWindowHandle(), true); }

    // Call this when the outputs have changed.
    void refreshOutputs() {}
};

}
