#include "Gui/System/GeneralPage.h"

#include "Backend/core/MirelMessageManager.h"
#include "Backend/core/settings/RegistrySettings.h"
#include "Gui/MirelGuiIF.h"
#include "Gui/ResourceIds.h"
#include "Gui/Rules/values/SetupValues.h"
#include "Gui/Utils/skin/Skinner.h"
#include "Gui/Utils/windows/WindowText.h"

namespace Gui::System {

namespace {

constexpr int MAX_VELOCITY = 127;
constexpr int MAX_VELOCITY_LENGTH = 3;
constexpr int MAX_MOUSE_SENSITIVITY = 100;
constexpr int MAX_NUMBER_LENGTH = 9;  // The longest that a setting can hold.

}

GeneralPage::GeneralPage(MirelGuiIF& gui, Backend::RegistrySettings& settings, bool offersAlwaysOnTop,
                         bool offersMetallicBorder)
    : SetupPage(gui, IDD_SETUP_GENERAL, "GeneralLeDialog"),
      m_settings(settings),
      m_offersAlwaysOnTop(offersAlwaysOnTop),
      m_offersMetallicBorder(offersMetallicBorder) {}

void GeneralPage::initialize() {
    fillChannels();
    Skinner::setMinMax(window(), IDC_SETUP_VELOCITY, 0, MAX_VELOCITY);
    Skinner::setMinMax(window(), IDC_SETUP_MOUSE_SENSITIVITY, 1, MAX_MOUSE_SENSITIVITY);
    SendMessageA(control(IDC_SETUP_VELOCITY), EM_LIMITTEXT, MAX_VELOCITY_LENGTH, 0);
    SendMessageA(control(IDC_SETUP_MOUSE_SENSITIVITY), EM_LIMITTEXT, MAX_NUMBER_LENGTH, 0);
    SetDlgItemInt(window(), IDC_SETUP_VELOCITY, static_cast<UINT>(m_settings.getLiteVelocity()), TRUE);
    SetDlgItemInt(window(), IDC_SETUP_MOUSE_SENSITIVITY, static_cast<UINT>(m_settings.getMouseSensitivity()), TRUE);
    setChecked(IDC_SETUP_STACK_NOTES, m_settings.getLiteStackNotes());
    setChecked(IDC_SETUP_DOCK, m_settings.getDockToBottomEdge());
    setChecked(IDC_SETUP_ALWAYS_ON_TOP, m_settings.getAlwaysOnTop());
    setChecked(IDC_SETUP_SKIN_BORDER, m_settings.getUseSkinBorder());
    setChecked(IDC_SETUP_CLICK_TRANSPOSE, m_settings.getClickZoneChannelTranspose());
    if (!m_offersAlwaysOnTop)
        ShowWindow(control(IDC_SETUP_ALWAYS_ON_TOP), SW_HIDE);
    if (!m_offersMetallicBorder)
        ShowWindow(control(IDC_SETUP_SKIN_BORDER), SW_HIDE);
}

void GeneralPage::fillChannels() {
    const HWND channels = control(IDC_SETUP_CHANNEL);
    for (int channel = 1; channel <= MIDI_CHANNELS; ++channel)
        SendMessageA(channels, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(std::to_string(channel).c_str()));
    SendMessageA(channels, CB_SETCURSEL, static_cast<WPARAM>(limitChannel(m_settings.getLiteChannel())), 0);
}

void GeneralPage::apply() {
    const int velocity = readVelocity(getWindowText(control(IDC_SETUP_VELOCITY)));
    const bool stackNotes = isChecked(IDC_SETUP_STACK_NOTES);
    const int channel = static_cast<int>(SendMessageA(control(IDC_SETUP_CHANNEL), CB_GETCURSEL, 0, 0));

    Backend::MirelMessageManager& desk = gui().getMirelMessageManager();
    desk.postSetMouseSensitivity(readMouseSensitivity(getWindowText(control(IDC_SETUP_MOUSE_SENSITIVITY))));
    desk.postSetDockToBottomEdge(isChecked(IDC_SETUP_DOCK));
    desk.postSetAlwaysOnTop(isChecked(IDC_SETUP_ALWAYS_ON_TOP));
    desk.postSetUseSkinBorder(isChecked(IDC_SETUP_SKIN_BORDER));
    desk.postSetClickZoneChannelTranspose(isChecked(IDC_SETUP_CLICK_TRANSPOSE));
    desk.postSetLiteVelocity(velocity);
    desk.postSetLiteStackNotes(stackNotes);
    desk.postSetLiteChannel(channel);

    // The desk sends the window no notification of these.
    m_settings.setLiteVelocity(velocity);
    m_settings.setLiteStackNotes(stackNotes);
    m_settings.setLiteChannel(channel);
}

}
