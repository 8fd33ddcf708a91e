#pragma once

#include "Backend/core/messages/GuiMessageManager.h"

namespace Gui::ComputerInput {

class ComputerInputPanel;

// Passes the desk's changes of its keys to their screen. [gui]
class ComputerInputGuiMessageManager : public Backend::GuiMessageManager {
public:
    explicit ComputerInputGuiMessageManager(ComputerInputPanel& panel) : m_panel(panel) {}

    bool wantMessage(unsigned int message) override;
    void handleMessage(unsigned int message, WPARAM wParam, LPARAM lParam) override;

private:
    ComputerInputPanel& m_panel;
};

}
