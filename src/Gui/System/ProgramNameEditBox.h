#pragma once

#include "Gui/Utils/widgets/EditBox.h"

#include <string>

namespace Gui {
class MirelGuiIF;
}

namespace Gui::System {

// A box over the list of programs for changing the current program's name. It closes when it loses the focus, and saves
// the name unless that was due to Esc; Enter and a click into it save too. [gui]
class ProgramNameEditBox : public EditBox {
public:
    // The most bytes a name can hold.
    static constexpr int MAX_NAME = 200;

    explicit ProgramNameEditBox(MirelGuiIF& gui) : m_gui(gui) {}

    // Closes an open box without saving.
    ~ProgramNameEditBox() override;

    // Covers the list, which is a control of a panel, and takes the focus.
    void open(HWND list);

    LRESULT wndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    static void giveFocusBack(HWND window);
    std::string readName(HWND window) const;
    void handleFocusLost(HWND window);

    MirelGuiIF& m_gui;
};

}
