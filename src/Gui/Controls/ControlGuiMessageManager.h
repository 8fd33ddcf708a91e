#pragma once

#include "Backend/core/messages/GuiMessageManager.h"

namespace Gui::Controls {

class ControlPanel;

// Passes the desk's changes of its controls to their screen. [gui]
class ControlGuiMessageManager : public Backend::GuiMessageManager {
public:
    explicit ControlGuiMessageManager(ControlPanel& panel) : m_panel(panel) {}

    bool wantMessage(unsigned int message) override;
    void handleMessage(unsigned int message, WPARAM wParam, LPARAM lParam) override;

private:
    ControlPanel& m_panel;
};

}
