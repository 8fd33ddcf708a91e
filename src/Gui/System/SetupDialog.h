#pragma once

#include "Gui/Rules/keys/LoopbackGuard.h"
#include "Gui/System/DisplayPage.h"
#include "Gui/System/GeneralPage.h"
#include "Gui/System/MidiOutputsPage.h"

#include <windows.h>

#include <vector>

namespace Backend {
class RegistrySettings;
}

namespace Gui {
class MirelGuiIF;
}

namespace Gui::System {

// The setup: a sheet of pages that show the settings and have the desk change them when the user confirms. [gui]
class SetupDialog {
public:
    // The settings are the window's copy. The flags say whether the two settings of the host's window are offered, and
    // whether there is a page for the outputs.
    SetupDialog(MirelGuiIF& gui, Backend::RegistrySettings& settings, bool offersAlwaysOnTop, bool offersMetallicBorder,
                bool hasMidiOutputs);
    SetupDialog(const SetupDialog&) = delete;
    SetupDialog& operator=(const SetupDialog&) = delete;

    // Returns when the user has closed the sheet.
    void show();

private:
    static int CALLBACK sheetProcedure(HWND sheet, UINT message, LPARAM lParam);

    MirelGuiIF& m_gui;
    bool m_hasMidiOutputs;
    std::vector<SetupPort> m_outputs;  // As shown in the sheet.
    std::vector<SetupPort> m_inputs;
    GeneralPage m_generalPage;
    DisplayPage m_displayPage;
    MidiOutputsPage m_midiOutputsPage;
};

}
