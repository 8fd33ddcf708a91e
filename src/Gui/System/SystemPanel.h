#pragma once

#include "Gui/System/ProgramNameComboBox.h"
#include "Gui/Utils/SkinPanel.h"
#include "Gui/Utils/skin/PopupMenu.h"
#include "Gui/Utils/widgets/Button.h"
#include "Gui/Utils/widgets/ComboBox.h"

#include <windows.h>

#include <map>
#include <memory>

namespace Gui::System {

// The strip at the top of the window: the default output, and the buttons for the screens, the setup, a reset and the
// global keyboard. A refresh shows the window's current copies of the desk's state. [gui]
class SystemPanel : public SkinPanel, public Button::Listener {
public:
    explicit SystemPanel(MirelGuiIF& gui);

    void createWnd(HINSTANCE module, HWND parentWindow) override;
    INT_PTR dlgProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;

    // The usable outputs, with the default one selected.
    void refreshOutputs();
    void selectDefaultOutput();

    // The programs of the bank, with the current one selected.
    void refreshPrograms();
    void selectCurrentProgram();

    // Which screens show.
    void setOutputButton(bool state);
    void setControlButton(bool state);
    void setDisplayButton(bool state);
    void setHelpButton(bool state);
    void setComputerInputButton(bool state);

    // Thru and global keyboard, from the settings.
    void refreshSettings();

    // Let the user choose from a menu.
    void showOutputMenu();
    void showProgramMenu();

private:
    void comeToFront();

    void buttonChanged(int id, bool state) override;
    void createButtons();
    void createComboBox(ComboBox& box, int id, int rowsPerColumn, int helpId);
    void setButton(int id, bool state);
    bool handleChoice(HWND window);
    void showFunctionMenu(LPARAM position);
    void save();

    ComboBox m_outputs;
    ProgramNameComboBox m_programs;
    PopupMenu m_functionMenu;
    std::map<int, std::unique_ptr<Button>> m_buttons;
};

}
