#pragma once

#include "Backend/core/messages/GuiMessageManager.h"

namespace Gui {

class MirelGui;

// Passes the desk's notifications to its window (Backend/core/WindowMessages.h). [gui]
class MirelGuiMessageManager : public Backend::GuiMessageManager {
public:
    explicit MirelGuiMessageManager(MirelGui& gui) : m_gui(gui) {}

    bool wantMessage(unsigned int message) override;
    void handleMessage(unsigned int message, WPARAM wParam, LPARAM lParam) override;

private:
    MirelGui& m_gui;
};

}
