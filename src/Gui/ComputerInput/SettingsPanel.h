#pragma once

#include "Gui/ComputerInput/DownFunctionPanel.h"
#include "Gui/ComputerInput/MainSettingsPanel.h"
#include "Gui/ComputerInput/UpFunctionPanel.h"
#include "Gui/Utils/SkinPanel.h"

namespace Gui::ComputerInput {

// What the selected keys do. [gui]
class SettingsPanel : public SkinPanel {
public:
    explicit SettingsPanel(MirelGuiIF& gui)
        : SkinPanel(gui), m_mainSettingsPanel(gui), m_downFunctionPanel(gui), m_upFunctionPanel(gui) {}

    // Adds the sub-panels. Call it once, when the window exists.
    void setupPanels() {
        add(&m_mainSettingsPanel);
        add(&m_downFunctionPanel);
        add(&m_upFunctionPanel);
    }

    MainSettingsPanel& getMainSettingsPanel() { return m_mainSettingsPanel; }
    DownFunctionPanel& getDownFunctionPanel() { return m_downFunctionPanel; }
    UpFunctionPanel& getUpFunctionPanel() { return m_upFunctionPanel; }

    // Fills the fields again.
    void refresh() {
        m_mainSettingsPanel.refresh();
        m_downFunctionPanel.refresh();
        m_upFunctionPanel.refresh();
    }

private:
    MainSettingsPanel m_mainSettingsPanel;
    DownFunctionPanel m_downFunctionPanel;
    UpFunctionPanel m_upFunctionPanel;
};

}
