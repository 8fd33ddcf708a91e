#pragma once

#include "Gui/ResourceIds.h"
#include "Gui/Utils/SkinPanel.h"
#include "Gui/Utils/windows/Redraw.h"

namespace Gui::Layers {

// The strip of the layers, and the tempo. [gui]
class MainPanel : public SkinPanel {
public:
    explicit MainPanel(MirelGuiIF& gui) : SkinPanel(gui, IDD_LAYER_MAIN) {}

    // Call this when the program's tempo or tempo source has changed.
    void refreshTempo() {}

    // Call these when layers have changed: all of their rows, or the button at the left of one.
    void refreshRows() { redraw(getWindowHandle()); }
    void refreshBox(int row);

    // Call this when the inputs have changed.
    void refreshTempoSources() {}
};

}
