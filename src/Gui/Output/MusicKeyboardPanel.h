#pragma once

#include "Gui/Utils/SkinPanel.h"
#include "Gui/Utils/widgets/Button.h"
#include "Gui/Utils/widgets/MusicKeyboardCtl.h"

namespace Gui::Output {

// The music keyboard, and the buttons of the panels around it. [gui]
class MusicKeyboardPanel : public SkinPanel, private Button::Listener {
public:
    explicit MusicKeyboardPanel(MirelGuiIF& gui);

    void createWnd(HINSTANCE module, HWND parentWindow) override;

    MusicKeyboardCtl& getMusicKeyboardCtl() { return m_keyboard; }

    // Each shows whether its panel is visible.
    Button& getCcButton() { return m_ccButton; }
    Button& getZoneButton() { return m_zoneButton; }
    Button& getLayerButton() { return m_layerButton; }

private:
    void buttonChanged(int id, bool state) override;

    MusicKeyboardCtl m_keyboard;
    Button m_ccButton;
    Button m_zoneButton;
    Button m_layerButton;
};

}
