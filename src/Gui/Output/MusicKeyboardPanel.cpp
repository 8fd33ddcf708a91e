#include "Gui/Output/MusicKeyboardPanel.h"

#include "Gui/MirelGuiIF.h"
#include "Gui/ResourceIds.h"
#include "Gui/Utils/skin/SkinProperties.h"
#include "Gui/Utils/windows/WindowProperties.h"

namespace Gui::Output {

MusicKeyboardPanel::MusicKeyboardPanel(MirelGuiIF& gui)
    : SkinPanel(gui, IDD_MUSIC_KEYBOARD),
      m_ccButton(gui, this, Button::Kind::toggle),
      m_zoneButton(gui, this, Button::Kind::toggle),
      m_layerButton(gui, this, Button::Kind::toggle) {}

void MusicKeyboardPanel::createWnd(HINSTANCE module, HWND parentWindow) {
    SkinPanel::createWnd(module, parentWindow);
    struct Row {
        Button& button;
        int id;
        int help;
    };
    for (const Row& row : {Row{m_ccButton, IDC_SHOW_CC, HELP_SHOW_CC}, Row{m_zoneButton, IDC_SHOW_ZONE, HELP_SHOW_ZONE},
                           Row{m_layerButton, IDC_SHOW_LAYER, HELP_SHOW_LAYER}}) {
        row.button.create(GetDlgItem(getWindowHandle(), row.id));
        setNumber(row.button.getWindowHandle(), SkinProperties::HELP, row.help);
    }
}

void MusicKeyboardPanel::buttonChanged(int id, bool state) {
    switch (id) {
        case IDC_SHOW_CC: gui().showCc(state); break;
        case IDC_SHOW_ZONE: gui().showZone(state); break;
        case IDC_SHOW_LAYER: gui().showLayer(state); break;
        default: break;
    }
}

}
