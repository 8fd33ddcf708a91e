#pragma once

#include "Backend/core/messages/GuiMessageManager.h"

namespace Gui::Layers {

class LayerPanel;

// Passes the desk's changes of its layers to their screen. [gui]
class LayerGuiMessageManager : public Backend::GuiMessageManager {
public:
    explicit LayerGuiMessageManager(LayerPanel& panel) : m_panel(panel) {}

    bool wantMessage(unsigned int message) override;
    void handleMessage(unsigned int message, WPARAM wParam, LPARAM lParam) override;

private:
    LayerPanel& m_panel;
};

}
