#pragma once

#include "Gui/ResourceIds.h"
#include "Gui/Utils/SkinPanel.h"
#include "Gui/Utils/windows/Redraw.h"

namespace Gui::ComputerInput {

// What a key does when it goes down. [gui]
class DownFunctionPanel : public SkinPanel {
public:
    explicit DownFunctionPanel(MirelGuiIF& gui) : SkinPanel(gui, IDD_KEY_DOWN_FUNCTION) {}

    // Fills the fields anew.
    void refresh() { redraw(getWindowHandle(), true); }

    // The outputs have changed.
    void refreshOutputs() {}
};

}
