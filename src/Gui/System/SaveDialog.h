#pragma once

namespace Gui {
class MirelGuiIF;
}

namespace Gui::System {

// Asks for a file and has the desk save the current program there: as a program of its own, or in a copy of the bank.
class SaveDialog {
public:
    explicit SaveDialog(MirelGuiIF& gui) : m_gui(gui) {}

    // [gui] Returns when the user has chosen or given up.
    void show();

private:
    MirelGuiIF& m_gui;
};

}
