// Messages to the MirelMessageManager, each for the operation of MirelIF with the same name, as rows of what their
// first and second word carry.
#pragma once

#include "Backend/core/messages/MessageFamily.h"

#include <string>
#include <vector>

class OnOffToggle;
class RelativeFixedValue;
class SelectType;
struct Rect;

namespace Backend {
struct ScreenState;
struct Version2ImportRequest;
}

namespace Backend::MidiEngine {
class MirelMidiMessage;
struct MidiInputPort;
struct MidiOutputPort;
}

namespace Backend::MirelMessages {

using InputPorts = std::vector<MidiEngine::MidiInputPort>;
using OutputPorts = std::vector<MidiEngine::MidiOutputPort>;
using MidiEngine::MirelMidiMessage;

// clang-format off

inline constexpr SentMessage<33219>                                   INITIALIZE;
inline constexpr SentMessage<33220>                                   END;
inline constexpr SentMessage<33221, Heap<InputPorts>>                 SEND_SET_MIDI_INPUT_PORTS;
inline constexpr Message<33222, Heap<InputPorts>>                     SET_MIDI_INPUT_PORTS;
inline constexpr SentMessage<33223, Heap<OutputPorts>>                SEND_SET_MIDI_OUTPUT_PORTS;
inline constexpr Message<33224, Heap<OutputPorts>>                    SET_MIDI_OUTPUT_PORTS;
inline constexpr SentMessage<33225>                                   END_INITIALIZE;
inline constexpr SentMessage<33226, bool>                             SEND_CREATE_MIREL_GUI;  // isVstPlugin.
inline constexpr Message<33227, Nothing, Heap<Rect>>                  SET_LAST_WINDOW_POSITION;
inline constexpr Message<33228>                                       REMOVE_GUI_WINDOW_HANDLE;
inline constexpr Message<33229, bool>                                 SET_DOCK_TO_BOTTOM_EDGE;
inline constexpr Message<33230, Nothing, Heap<std::string>>           SET_DEFAULT_BANK;
inline constexpr Message<33231, int>                                  SET_DISPLAY_HEIGHT;
inline constexpr Message<33232, bool>                                 SET_DISPLAY_NUMBERS;
inline constexpr Message<33233, bool>                                 SET_LARGE_DISPLAY_FONT;
inline constexpr Message<33234, bool>                                 SET_DISPLAY_MIDI_INPUT_EVENTS;
inline constexpr Message<33235, bool>                                 SET_DISPLAY_MIDI_OUTPUT_EVENTS;
inline constexpr Message<33236, bool>                                 SET_ALWAYS_ON_TOP;
inline constexpr Message<33239, Heap<std::string>>                    LOAD_PROGRAM;
inline constexpr Message<33240, Heap<std::string>>                    LOAD_BANK;
inline constexpr Message<33241, Nothing, Heap<Version2ImportRequest>> IMPORT_VERSION_2_BANK;
inline constexpr Message<33242, Nothing, Heap<Version2ImportRequest>> IMPORT_VERSION_2_PROGRAM;
inline constexpr Message<33243, Nothing, Heap<Version2ImportRequest>> IMPORT_VERSION_2_PRESET;
inline constexpr Message<33244, int, HWND>                            SAVE_TO_CURRENT_BANK;  // Index, window to notify.
inline constexpr Message<33245, Heap<std::string>, HWND>              SAVE_TO_BANK;  // Path, window to notify.
inline constexpr Message<33246, Heap<std::string>, HWND>              SAVE_TO_PROGRAM;  // Path, window to notify.
inline constexpr Message<33247, Heap<MirelMidiMessage>>               PLAY_MIDI_VIA_ALLOC;
inline constexpr Message<33248, BothWords<MirelMidiMessage>>          PLAY_MIDI_VIA_PARAM;
inline constexpr Message<33249, int, bool>                            ENABLE_MIDI_INPUT;  // Index, on or off.
inline constexpr Message<33250, int, bool>                            ENABLE_MIDI_OUTPUT;  // Index, on or off.
inline constexpr Message<33251, BothWords<MirelMidiMessage>>          PROCESS_MIDI_INPUT_EVENT_VIA_PARAM;
inline constexpr Message<33252, Heap<MirelMidiMessage>>               PROCESS_MIDI_INPUT_EVENT_VIA_ALLOC;
inline constexpr Message<33253>                                       RESET_MIREL;
inline constexpr Message<33254, int, HWND>                            CHANGE_BANK_SIZE;  // Size, window to notify.
inline constexpr Message<33255, Nothing, Heap<std::string>>           CHANGE_PROGRAM_NAME;
inline constexpr Message<33256, Heap<std::string>, Heap<std::string>> ADD_SEQUENCE_PRESET;  // Name, sequence.
inline constexpr Message<33257, Heap<SelectType>>                     CHANGE_PROGRAM;
inline constexpr Message<33258, Heap<SelectType>>                     CHANGE_DEFAULT_MIDI_OUTPUT;
inline constexpr Message<33259, Heap<ScreenState>>                    SET_SCREEN_STATE;
inline constexpr Message<33260, bool>                                 SET_USE_SKIN_BORDER;
inline constexpr Message<33261>                                       TOGGLE_SYSTEM_PANEL;
inline constexpr Message<33264, Heap<RelativeFixedValue>, bool>       CHANGE_TEMPO;  // l: notifyGui.
inline constexpr Message<33265, State<OnOffToggle>, bool>             CHANGE_MIDI_THRU;  // l: notifyGui.
inline constexpr Message<33266, State<OnOffToggle>, bool>             CHANGE_GLOBAL_KEYBOARD;  // l: notifyGui.
inline constexpr Message<33267, char, bool>                           SET_TEMPO_SOURCE;  // Input; l: notifyGui.
inline constexpr Message<33268, int>                                  SET_MOUSE_SENSITIVITY;
inline constexpr Message<33269, int>                                  SET_LITE_VELOCITY;
inline constexpr Message<33270, int>                                  SET_LITE_CHANNEL;
inline constexpr Message<33271, bool>                                 SET_LITE_STACK_NOTES;
inline constexpr Message<33272, bool>                                 SET_CLICK_ZONE_CHANNEL_TRANSPOSE;

inline constexpr auto FAMILY = familyOf<MIREL_RANGE>(
    Unused<33218, 33237, 33238, 33262, 33263, 33273>(),
    INITIALIZE, END, SEND_SET_MIDI_INPUT_PORTS, SET_MIDI_INPUT_PORTS, SEND_SET_MIDI_OUTPUT_PORTS, SET_MIDI_OUTPUT_PORTS,
    END_INITIALIZE, SEND_CREATE_MIREL_GUI, SET_LAST_WINDOW_POSITION, REMOVE_GUI_WINDOW_HANDLE, SET_DOCK_TO_BOTTOM_EDGE,
    SET_DEFAULT_BANK, SET_DISPLAY_HEIGHT, SET_DISPLAY_NUMBERS, SET_LARGE_DISPLAY_FONT, SET_DISPLAY_MIDI_INPUT_EVENTS,
    SET_DISPLAY_MIDI_OUTPUT_EVENTS, SET_ALWAYS_ON_TOP, LOAD_PROGRAM, LOAD_BANK, IMPORT_VERSION_2_BANK,
    IMPORT_VERSION_2_PROGRAM, IMPORT_VERSION_2_PRESET, SAVE_TO_CURRENT_BANK, SAVE_TO_BANK, SAVE_TO_PROGRAM,
    PLAY_MIDI_VIA_ALLOC, PLAY_MIDI_VIA_PARAM, ENABLE_MIDI_INPUT, ENABLE_MIDI_OUTPUT, PROCESS_MIDI_INPUT_EVENT_VIA_PARAM,
    PROCESS_MIDI_INPUT_EVENT_VIA_ALLOC, RESET_MIREL, CHANGE_BANK_SIZE, CHANGE_PROGRAM_NAME, ADD_SEQUENCE_PRESET,
    CHANGE_PROGRAM, CHANGE_DEFAULT_MIDI_OUTPUT, SET_SCREEN_STATE, SET_USE_SKIN_BORDER, TOGGLE_SYSTEM_PANEL,
    CHANGE_TEMPO, CHANGE_MIDI_THRU, CHANGE_GLOBAL_KEYBOARD, SET_TEMPO_SOURCE, SET_MOUSE_SENSITIVITY, SET_LITE_VELOCITY,
    SET_LITE_CHANNEL, SET_LITE_STACK_NOTES, SET_CLICK_ZONE_CHANNEL_TRANSPOSE);

// clang-format on

}
