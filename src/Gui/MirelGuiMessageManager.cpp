#include "Gui/MirelGuiMessageManager.h"

#include "Backend/core/WindowMessages.h"
#include "Backend/core/messages/MessagePayload.h"
#include "Backend/core/messages/MessageRanges.h"
#include "Backend/functions/values/RelativeFixedValue.h"
#include "Backend/midi/MirelMidiMessage.h"
#include "Gui/MirelGui.h"

#include <array>

namespace Gui {

using namespace Backend;
using namespace Backend::WindowMessages;
using MidiEngine::MidiInputPort;
using MidiEngine::MidiOutputPort;
using MidiEngine::MirelMidiMessage;

namespace {

struct FlagRow {
    UINT message;
    void (MirelGui::*handle)(bool value);
};

constexpr std::array FLAGS = {
    FlagRow{DOCK_TO_BOTTOM_EDGE_CHANGED, &MirelGui::handleDockToBottomEdgeChanged},
    FlagRow{DISPLAY_NUMBERS_CHANGED, &MirelGui::handleDisplayNumbersChanged},
    FlagRow{LARGE_DISPLAY_FONT_CHANGED, &MirelGui::handleLargeDisplayFontChanged},
    FlagRow{DISPLAY_MIDI_INPUT_EVENTS_CHANGED, &MirelGui::handleDisplayMidiInputEventsChanged},
    FlagRow{DISPLAY_MIDI_OUTPUT_EVENTS_CHANGED, &MirelGui::handleDisplayMidiOutputEventsChanged},
    FlagRow{SHOW_SYSTEM_PANEL, &MirelGui::showSystemPanel},
    FlagRow{SHOW_HELP, &MirelGui::showHelp},
    FlagRow{SHOW_DISPLAY, &MirelGui::showDisplay},
    FlagRow{SHOW_COMPUTER_INPUT, &MirelGui::showComputerInput},
    FlagRow{SHOW_CONTROL, &MirelGui::showControl},
    FlagRow{SHOW_OUTPUT, &MirelGui::showOutput},
    FlagRow{SHOW_CC, &MirelGui::showCc},
    FlagRow{SHOW_LAYER, &MirelGui::showLayer},
    FlagRow{SHOW_ZONE, &MirelGui::showZone},
    FlagRow{ALWAYS_ON_TOP_CHANGED, &MirelGui::handleAlwaysOnTopChanged},
    FlagRow{USE_SKIN_BORDER_CHANGED, &MirelGui::handleUseSkinBorderChanged},
    FlagRow{RETRO_RECORD_ENABLED_CHANGED, &MirelGui::handleRetroRecordEnabledChanged},
    FlagRow{MIDI_THRU_CHANGED, &MirelGui::handleMidiThruChanged},
    FlagRow{GLOBAL_KEYBOARD_CHANGED, &MirelGui::handleGlobalKeyboardChanged},
    FlagRow{CLICK_ZONE_CHANNEL_TRANSPOSE_CHANGED, &MirelGui::handleClickZoneChannelTransposeChanged},
};

struct NumberRow {
    UINT message;
    void (MirelGui::*handle)(int value);
};

constexpr std::array NUMBERS = {
    NumberRow{DEFAULT_MIDI_OUTPUT_CHANGED, &MirelGui::handleDefaultMidiOutputChanged},
    NumberRow{RETRO_RECORD_BUFFER_SIZE_CHANGED, &MirelGui::handleRetroRecordBufferSizeChanged},
    NumberRow{MOUSE_SENSITIVITY_CHANGED, &MirelGui::handleMouseSensitivityChanged},
};

struct RequestRow {
    UINT message;
    void (MirelGui::*handle)();
};

constexpr std::array REQUESTS = {
    RequestRow{TOGGLE_SYSTEM_PANEL, &MirelGui::toggleSystemPanel},
    RequestRow{TOGGLE_HELP, &MirelGui::toggleHelp},
    RequestRow{TOGGLE_DISPLAY, &MirelGui::toggleDisplay},
    RequestRow{TOGGLE_COMPUTER_INPUT, &MirelGui::toggleComputerInput},
    RequestRow{TOGGLE_CONTROL, &MirelGui::toggleControl},
    RequestRow{TOGGLE_OUTPUT, &MirelGui::toggleOutput},
    RequestRow{TOGGLE_CC, &MirelGui::toggleCc},
    RequestRow{TOGGLE_LAYER, &MirelGui::toggleLayer},
    RequestRow{TOGGLE_ZONE, &MirelGui::toggleZone},
    RequestRow{RESET_MIREL, &MirelGui::handleResetMirel},
    RequestRow{SHOW_PROGRAM_MENU, &MirelGui::showProgramMenu},
    RequestRow{SHOW_DEFAULT_MIDI_OUTPUT_MENU, &MirelGui::showDefaultMidiOutputMenu},
};

}

bool MirelGuiMessageManager::wantMessage(unsigned int message) {
    return MIREL_GUI_RANGE.contains(message);
}

void MirelGuiMessageManager::handleMessage(unsigned int message, WPARAM wParam, LPARAM lParam) {
    for (const FlagRow& row : FLAGS)
        if (row.message == message)
            return (m_gui.*row.handle)(wParam != 0);
    for (const NumberRow& row : NUMBERS)
        if (row.message == message)
            return (m_gui.*row.handle)(static_cast<int>(wParam));
    for (const RequestRow& row : REQUESTS)
        if (row.message == message)
            return (m_gui.*row.handle)();
    handlePayload(message, wParam, lParam);
}

void MirelGuiMessageManager::handlePayload(unsigned int message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case DEFAULT_BANK_CHANGED:
            if (const auto path = takePayload<std::string>(lParam))
                m_gui.handleDefaultBankChanged(*path);
            break;
        case BANK_CHANGED:
            if (const auto bank = takePayload<Bank>(lParam))
                m_gui.handleBankChanged(*bank);
            break;
        case PROGRAM_CHANGED:
            if (const auto program = takePayload<Program>(lParam))
                m_gui.handleProgramChanged(*program);
            break;
        case PROGRAM_NAME_CHANGED:
            if (const auto program = takePayload<Program>(lParam))
                m_gui.handleProgramNameChanged(*program);
            break;
        case MOVE_WINDOW: {
            const auto x = takePayload<RelativeFixedValue>(wParam);
            const auto y = takePayload<RelativeFixedValue>(lParam);
            if (x && y)
                m_gui.moveWindow(*x, *y);
            break;
        }
        case DISPLAY_MIDI_OUTPUT_EVENT: m_gui.displayMidiOutputEvent(MirelMidiMessage(wParam, lParam)); break;
        case MIDI_INPUT_PORTS_CHANGED:
            if (const auto ports = takePayload<std::vector<MidiInputPort>>(lParam))
                m_gui.handleMidiInputPortsChanged(*ports);
            break;
        case MIDI_OUTPUT_PORTS_CHANGED:
            if (const auto ports = takePayload<std::vector<MidiOutputPort>>(lParam))
                m_gui.handleMidiOutputPortsChanged(*ports);
            break;
        default: break;
    }
}

}
