#include "Gui/System/DisplayPage.h"

#include "Backend/core/MirelMessageManager.h"
#include "Backend/core/settings/RegistrySettings.h"
#include "Gui/MirelGuiIF.h"
#include "Gui/ResourceIds.h"

namespace Gui::System {

DisplayPage::DisplayPage(MirelGuiIF& gui, Backend::RegistrySettings& settings)
    : SetupPage(gui, IDD_SETUP_DISPLAY, "DisplayDialog"), m_settings(settings) {}

void DisplayPage::initialize() {
    setChecked(IDC_SETUP_LARGE_FONT, m_settings.getLargeDisplayFont());
    setChecked(IDC_SETUP_DISPLAY_NUMBERS, m_settings.getDisplayNumbers());
    // This edition doesn't let the user choose what the log holds.
    ShowWindow(control(IDC_SETUP_DISPLAY_INPUTS), SW_HIDE);
    ShowWindow(control(IDC_SETUP_DISPLAY_OUTPUTS), SW_HIDE);
}

void DisplayPage::apply() {
    Backend::MirelMessageManager& desk = gui().getMirelMessageManager();
    desk.postSetDisplayNumbers(isChecked(IDC_SETUP_DISPLAY_NUMBERS));
    desk.postSetLargeDisplayFont(isChecked(IDC_SETUP_LARGE_FONT));
}

}
