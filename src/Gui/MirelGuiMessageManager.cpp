#include "Gui/MirelGuiMessageManager.h"

#include "Backend/core/WindowMessages.h"
#include "Backend/core/messages/MessageTable.h"
#include "Backend/functions/values/RelativeFixedValue.h"
#include "Backend/midi/MirelMidiMessage.h"
#include "Gui/MirelGui.h"

namespace Gui {

using namespace Backend;
using namespace Backend::WindowMessages;

namespace {

// clang-format off
constexpr MessageTable ROWS(
    FAMILY,
    on(DOCK_TO_BOTTOM_EDGE_CHANGED, &MirelGui::handleDockToBottomEdgeChanged),
    on(DEFAULT_BANK_CHANGED, &MirelGui::handleDefaultBankChanged),
    on(BANK_CHANGED, &MirelGui::handleBankChanged),
    on(PROGRAM_CHANGED, &MirelGui::handleProgramChanged),
    on(PROGRAM_NAME_CHANGED, &MirelGui::handleProgramNameChanged),
    on(DISPLAY_NUMBERS_CHANGED, &MirelGui::handleDisplayNumbersChanged),
    on(LARGE_DISPLAY_FONT_CHANGED, &MirelGui::handleLargeDisplayFontChanged),
    on(DISPLAY_MIDI_INPUT_EVENTS_CHANGED, &MirelGui::handleDisplayMidiInputEventsChanged),
    on(DISPLAY_MIDI_OUTPUT_EVENTS_CHANGED, &MirelGui::handleDisplayMidiOutputEventsChanged),
    on(MOVE_WINDOW, &MirelGui::moveWindow),
    on(SHOW_SYSTEM_PANEL, &MirelGui::showSystemPanel),
    on(TOGGLE_SYSTEM_PANEL, &MirelGui::toggleSystemPanel),
    on(SHOW_HELP, &MirelGui::showHelp),
    on(TOGGLE_HELP, &MirelGui::toggleHelp),
    on(SHOW_DISPLAY, &MirelGui::showDisplay),
    on(TOGGLE_DISPLAY, &MirelGui::toggleDisplay),
    on(SHOW_COMPUTER_INPUT, &MirelGui::showComputerInput),
    on(TOGGLE_COMPUTER_INPUT, &MirelGui::toggleComputerInput),
    on(SHOW_CONTROL, &MirelGui::showControl),
    on(TOGGLE_CONTROL, &MirelGui::toggleControl),
    on(SHOW_OUTPUT, &MirelGui::showOutput),
    on(TOGGLE_OUTPUT, &MirelGui::toggleOutput),
    on(SHOW_CC, &MirelGui::showCc),
    on(TOGGLE_CC, &MirelGui::toggleCc),
    on(SHOW_LAYER, &MirelGui::showLayer),
    on(TOGGLE_LAYER, &MirelGui::toggleLayer),
    on(SHOW_ZONE, &MirelGui::showZone),
    on(TOGGLE_ZONE, &MirelGui::toggleZone),
    on(DISPLAY_MIDI_OUTPUT_EVENT, &MirelGui::displayMidiOutputEvent),
    on(MIDI_INPUT_PORTS_CHANGED, &MirelGui::handleMidiInputPortsChanged),
    on(MIDI_OUTPUT_PORTS_CHANGED, &MirelGui::handleMidiOutputPortsChanged),
    on(DEFAULT_MIDI_OUTPUT_CHANGED, &MirelGui::handleDefaultMidiOutputChanged),
    on(RESET_MIREL, &MirelGui::handleResetMirel),
    on(SHOW_PROGRAM_MENU, &MirelGui::showProgramMenu),
    on(SHOW_DEFAULT_MIDI_OUTPUT_MENU, &MirelGui::showDefaultMidiOutputMenu),
    on(ALWAYS_ON_TOP_CHANGED, &MirelGui::handleAlwaysOnTopChanged),
    on(USE_SKIN_BORDER_CHANGED, &MirelGui::handleUseSkinBorderChanged),
    on(RETRO_RECORD_BUFFER_SIZE_CHANGED, &MirelGui::handleRetroRecordBufferSizeChanged),
    on(RETRO_RECORD_ENABLED_CHANGED, &MirelGui::handleRetroRecordEnabledChanged),
    on(MIDI_THRU_CHANGED, &MirelGui::handleMidiThruChanged),
    on(GLOBAL_KEYBOARD_CHANGED, &MirelGui::handleGlobalKeyboardChanged),
    on(MOUSE_SENSITIVITY_CHANGED, &MirelGui::handleMouseSensitivityChanged),
    on(CLICK_ZONE_CHANNEL_TRANSPOSE_CHANGED, &MirelGui::handleClickZoneChannelTransposeChanged));
// clang-format on

}

bool MirelGuiMessageManager::wantMessage(unsigned int message) {
    return MIREL_GUI_RANGE.contains(message);
}

void MirelGuiMessageManager::handleMessage(unsigned int message, WPARAM wParam, LPARAM lParam) {
    ROWS.handle(m_gui, message, wParam, lParam);
}

}
