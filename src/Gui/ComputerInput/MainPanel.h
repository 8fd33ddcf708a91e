#pragma once

#include "Gui/ComputerInput/ComputerKeyboardCtl.h"
#include "Gui/ResourceIds.h"
#include "Gui/Utils/SkinPanel.h"

namespace Gui::ComputerInput {

// The computer's keyboard on the screen. [gui]
class MainPanel : public SkinPanel {
public:
    explicit MainPanel(MirelGuiIF& gui) : SkinPanel(gui, IDD_COMPUTER_INPUT_MAIN) {}

    ComputerKeyboardCtl& getComputerKeyboardCtl() { return m_keyboard; }

private:
    ComputerKeyboardCtl m_keyboard;
};

}
