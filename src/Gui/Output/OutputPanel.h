#pragma once

#include "Gui/Layers/LayerPanel.h"
#include "Gui/Output/CcPanel.h"
#include "Gui/Output/MusicKeyboardPanel.h"
#include "Gui/Utils/SkinPanel.h"
#include "Gui/Zones/ZonePanel.h"

namespace Gui::Output {

// What is seen of a program's output: the controllers, the music keyboard, the zones and the layers. [gui]
class OutputPanel : public SkinPanel {
public:
    // [backend] The managers of the layers' and zones' messages come to the gui's.
    explicit OutputPanel(MirelGuiIF& gui);

    void createWnd(HINSTANCE module, HWND parentWindow) override;

    // Adds the sub-panels. Once, when the window is there.
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
