#pragma once

#include "Backend/core/messages/GuiMessageManager.h"

namespace Gui::Zones {

class ZonePanel;

// Passes the desk's changes of its zones to their screen. [gui]
class ZoneGuiMessageManager : public Backend::GuiMessageManager {
public:
    explicit ZoneGuiMessageManager(ZonePanel& panel) : m_panel(panel) {}

    bool wantMessage(unsigned int message) override;
    void handleMessage(unsigned int message, WPARAM wParam, LPARAM lParam) override;

private:
    ZonePanel& m_panel;
};

}
