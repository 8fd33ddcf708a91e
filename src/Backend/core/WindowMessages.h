// Messages from the backend to the main window, as rows of what their first and second word carry. Those of the
// components are in their own headers. Nobody sends those of the retro recording.
#pragma once

#include "Backend/core/messages/MessageFamily.h"

#include <string>
#include <vector>

class RelativeFixedValue;

namespace Backend {
class Bank;
class Program;
}

namespace Backend::MidiEngine {
class MirelMidiMessage;
struct MidiInputPort;
struct MidiOutputPort;
}

namespace Backend::WindowMessages {

using Amount = Heap<RelativeFixedValue>;
using InputPorts = Heap<std::vector<MidiEngine::MidiInputPort>>;
using OutputPorts = Heap<std::vector<MidiEngine::MidiOutputPort>>;

// clang-format off

inline constexpr Message<33219, bool>                                    DOCK_TO_BOTTOM_EDGE_CHANGED;
inline constexpr Message<33220, Nothing, Heap<std::string>>              DEFAULT_BANK_CHANGED;
inline constexpr Message<33221, Nothing, Heap<Bank>>                     BANK_CHANGED;
inline constexpr Message<33222, Nothing, Heap<Program>>                  PROGRAM_CHANGED;
inline constexpr Message<33223, Nothing, Heap<Program>>                  PROGRAM_NAME_CHANGED;
inline constexpr Message<33224, bool>                                    DISPLAY_NUMBERS_CHANGED;
inline constexpr Message<33225, bool>                                    LARGE_DISPLAY_FONT_CHANGED;
inline constexpr Message<33226, bool>                                    DISPLAY_MIDI_INPUT_EVENTS_CHANGED;
inline constexpr Message<33227, bool>                                    DISPLAY_MIDI_OUTPUT_EVENTS_CHANGED;
inline constexpr Message<33228, Amount, Amount>                          MOVE_WINDOW;  // x, y.
inline constexpr Message<33229, bool>                                    SHOW_SYSTEM_PANEL;
inline constexpr Message<33230>                                          TOGGLE_SYSTEM_PANEL;
inline constexpr Message<33231, bool>                                    SHOW_HELP;
inline constexpr Message<33232>                                          TOGGLE_HELP;
inline constexpr Message<33233, bool>                                    SHOW_DISPLAY;
inline constexpr Message<33234>                                          TOGGLE_DISPLAY;
inline constexpr Message<33239, bool>                                    SHOW_COMPUTER_INPUT;
inline constexpr Message<33240>                                          TOGGLE_COMPUTER_INPUT;
inline constexpr Message<33243, bool>                                    SHOW_CONTROL;
inline constexpr Message<33244>                                          TOGGLE_CONTROL;
inline constexpr Message<33245, bool>                                    SHOW_OUTPUT;
inline constexpr Message<33246>                                          TOGGLE_OUTPUT;
inline constexpr Message<33247, bool>                                    SHOW_CC;
inline constexpr Message<33248>                                          TOGGLE_CC;
inline constexpr Message<33249, bool>                                    SHOW_LAYER;
inline constexpr Message<33250>                                          TOGGLE_LAYER;
inline constexpr Message<33251, bool>                                    SHOW_ZONE;
inline constexpr Message<33252>                                          TOGGLE_ZONE;
inline constexpr Message<33254, BothWords<MidiEngine::MirelMidiMessage>> DISPLAY_MIDI_OUTPUT_EVENT;
inline constexpr Message<33255, Nothing, InputPorts>                     MIDI_INPUT_PORTS_CHANGED;
inline constexpr Message<33256, Nothing, OutputPorts>                    MIDI_OUTPUT_PORTS_CHANGED;
inline constexpr Message<33257, int>                                     DEFAULT_MIDI_OUTPUT_CHANGED;  // Index, or -1.
inline constexpr Message<33258>                                          RESET_MIREL;
inline constexpr Message<33259>                                          SHOW_PROGRAM_MENU;
inline constexpr Message<33260>                                          SHOW_DEFAULT_MIDI_OUTPUT_MENU;
inline constexpr Message<33261, bool>                                    ALWAYS_ON_TOP_CHANGED;
inline constexpr Message<33262, bool>                                    USE_SKIN_BORDER_CHANGED;
inline constexpr Message<33263, int>                                     RETRO_RECORD_BUFFER_SIZE_CHANGED;
inline constexpr Message<33264, bool>                                    RETRO_RECORD_ENABLED_CHANGED;
inline constexpr Message<33265, bool>                                    MIDI_THRU_CHANGED;
inline constexpr Message<33266, bool>                                    GLOBAL_KEYBOARD_CHANGED;
inline constexpr Message<33267, int>                                     MOUSE_SENSITIVITY_CHANGED;
inline constexpr Message<33268, bool>                                    CLICK_ZONE_CHANNEL_TRANSPOSE_CHANGED;

inline constexpr auto FAMILY = familyOf<MIREL_GUI_RANGE>(
    Unused<33218, 33235, 33236, 33237, 33238, 33241, 33242, 33253, 33269>(),
    DOCK_TO_BOTTOM_EDGE_CHANGED, DEFAULT_BANK_CHANGED, BANK_CHANGED, PROGRAM_CHANGED, PROGRAM_NAME_CHANGED,
    DISPLAY_NUMBERS_CHANGED, LARGE_DISPLAY_FONT_CHANGED, DISPLAY_MIDI_INPUT_EVENTS_CHANGED,
    DISPLAY_MIDI_OUTPUT_EVENTS_CHANGED, MOVE_WINDOW, SHOW_SYSTEM_PANEL, TOGGLE_SYSTEM_PANEL, SHOW_HELP, TOGGLE_HELP,
    SHOW_DISPLAY, TOGGLE_DISPLAY, SHOW_COMPUTER_INPUT, TOGGLE_COMPUTER_INPUT, SHOW_CONTROL, TOGGLE_CONTROL, SHOW_OUTPUT,
    TOGGLE_OUTPUT, SHOW_CC, TOGGLE_CC, SHOW_LAYER, TOGGLE_LAYER, SHOW_ZONE, TOGGLE_ZONE, DISPLAY_MIDI_OUTPUT_EVENT,
    MIDI_INPUT_PORTS_CHANGED, MIDI_OUTPUT_PORTS_CHANGED, DEFAULT_MIDI_OUTPUT_CHANGED, RESET_MIREL, SHOW_PROGRAM_MENU,
    SHOW_DEFAULT_MIDI_OUTPUT_MENU, ALWAYS_ON_TOP_CHANGED, USE_SKIN_BORDER_CHANGED, RETRO_RECORD_BUFFER_SIZE_CHANGED,
    RETRO_RECORD_ENABLED_CHANGED, MIDI_THRU_CHANGED, GLOBAL_KEYBOARD_CHANGED, MOUSE_SENSITIVITY_CHANGED,
    CLICK_ZONE_CHANNEL_TRANSPOSE_CHANGED);

// Posted to the window named in a file operation, once the operation is done.
inline constexpr Message<32881> SAVE_TO_PROGRAM_DONE;
inline constexpr Message<32882> SAVE_TO_BANK_DONE;  // Also for the current bank.
inline constexpr Message<32883> CHANGE_BANK_SIZE_DONE;
inline constexpr Message<32891> IMPORT_VERSION_2_BANK_DONE;
inline constexpr Message<32892> IMPORT_VERSION_2_PROGRAM_DONE;
inline constexpr Message<32893> IMPORT_VERSION_2_PRESET_DONE;

// clang-format on

}
