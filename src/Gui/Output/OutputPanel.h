#pragma once

#include "Gui/Layers/LayerPanel.h"
#include "Gui/Output/CcPanel.h"
#include "Gui/Output/MusicKeyboardPanel.h"
#include "Gui/Utils/SkinPanel.h"
#include "Gui/Zones/ZonePanel.h"

namespace Gui::Output {

// The visible output of a program: the controllers, the music keyboard, the zones and the layers. [gui]
class OutputPanel : public SkinPanel {
public:
    // [backend] Registers the managers of the layers' and zones' messages with the gui.
    explicit OutputPanel(MirelGuiIF& gui);

    void createWnd(HINSTANCE module, HWND parentWindow) override;

    // Adds the sub-panels. Call it once, when the window exists.
    void setupPanels();

    CcPanel& getCcPanel() { return m_ccPanel; }
    MusicKeyboardPanel& getMusicKeyboardPanel() { return m_musicKeyboardPanel; }
    Layers::LayerPanel& getLayerPanel() { return m_layerPanel; }
    Zones::ZonePanel& getZonePanel() { return m_zonePanel; }

private:
    CcPanel m_ccPanel;
    MusicKeyboardPanel m_musicKeyboardPanel;
    Layers::LayerPanel m_layerPanel;
    Zones::ZonePanel m_zonePanel;
};

}
