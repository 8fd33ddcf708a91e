// Messages to the MirelMessageManager, each for the operation of MirelIF of like name. w and l are the two words;
// "heap" is a pointer to a copy that the handler destroys. Those that are sent wait for the answer.
#pragma once

#include "Platform/WindowTypes.h"

namespace Backend::MirelMessages {

enum Number : UINT {
    INITIALIZE = 33219,                          // Sent.
    END = 33220,                                 // Sent.
    SEND_SET_MIDI_INPUT_PORTS = 33221,           // Sent. w: heap vector of MidiInputPort.
    SET_MIDI_INPUT_PORTS = 33222,                // w: heap vector of MidiInputPort.
    SEND_SET_MIDI_OUTPUT_PORTS = 33223,          // Sent. w: heap vector of MidiOutputPort.
    SET_MIDI_OUTPUT_PORTS = 33224,               // w: heap vector of MidiOutputPort.
    END_INITIALIZE = 33225,                      // Sent.
    SEND_CREATE_MIREL_GUI = 33226,               // Sent. w: isVstPlugin.
    SET_LAST_WINDOW_POSITION = 33227,            // l: heap Rect.
    REMOVE_GUI_WINDOW_HANDLE = 33228,            //
    SET_DOCK_TO_BOTTOM_EDGE = 33229,             // w: bool.
    SET_DEFAULT_BANK = 33230,                    // l: heap string.
    SET_DISPLAY_HEIGHT = 33231,                  // w: int.
    SET_DISPLAY_NUMBERS = 33232,                 // w: bool.
    SET_LARGE_DISPLAY_FONT = 33233,              // w: bool.
    SET_DISPLAY_MIDI_INPUT_EVENTS = 33234,       // w: bool.
    SET_DISPLAY_MIDI_OUTPUT_EVENTS = 33235,      // w: bool.
    SET_ALWAYS_ON_TOP = 33236,                   // w: bool.
    LOAD_PROGRAM = 33239,                        // w: heap string.
    LOAD_BANK = 33240,                           // w: heap string.
    IMPORT_VERSION_2_BANK = 33241,               // l: heap Version2ImportRequest.
    IMPORT_VERSION_2_PROGRAM = 33242,            // l: heap Version2ImportRequest.
    IMPORT_VERSION_2_PRESET = 33243,             // l: heap Version2ImportRequest.
    SAVE_TO_CURRENT_BANK = 33244,                // w: index; l: window to notify.
    SAVE_TO_BANK = 33245,                        // w: heap string; l: window to notify.
    SAVE_TO_PROGRAM = 33246,                     // w: heap string; l: window to notify.
    PLAY_MIDI_VIA_ALLOC = 33247,                 // w: heap MirelMidiMessage.
    PLAY_MIDI_VIA_PARAM = 33248,                 // w, l: a MirelMidiMessage as getWparam and getLparam pack it.
    ENABLE_MIDI_INPUT = 33249,                   // w: index; l: bool.
    ENABLE_MIDI_OUTPUT = 33250,                  // w: index; l: bool.
    PROCESS_MIDI_INPUT_EVENT_VIA_PARAM = 33251,  // w, l: packed as above.
    PROCESS_MIDI_INPUT_EVENT_VIA_ALLOC = 33252,  // w: heap MirelMidiMessage.
    RESET_MIREL = 33253,                         //
    CHANGE_BANK_SIZE = 33254,                    // w: size; l: window to notify.
    CHANGE_PROGRAM_NAME = 33255,                 // l: heap string.
    ADD_SEQUENCE_PRESET = 33256,                 // w: heap string, the name; l: heap string, the sequence.
    CHANGE_PROGRAM = 33257,                      // w: heap SelectType.
    CHANGE_DEFAULT_MIDI_OUTPUT = 33258,          // w: heap SelectType.
    SET_SCREEN_STATE = 33259,                    // w: heap ScreenState.
    SET_USE_SKIN_BORDER = 33260,                 // w: bool.
    TOGGLE_SYSTEM_PANEL = 33261,                 //
    CHANGE_TEMPO = 33264,                        // w: heap RelativeFixedValue; l: notifyGui.
    CHANGE_MIDI_THRU = 33265,                    // w: state of an OnOffToggle; l: notifyGui.
    CHANGE_GLOBAL_KEYBOARD = 33266,              // w: state of an OnOffToggle; l: notifyGui.
    SET_TEMPO_SOURCE = 33267,                    // w: input; l: notifyGui.
    SET_MOUSE_SENSITIVITY = 33268,               // w: int.
    SET_LITE_VELOCITY = 33269,                   // w: int.
    SET_LITE_CHANNEL = 33270,                    // w: int.
    SET_LITE_STACK_NOTES = 33271,                // w: bool.
    SET_CLICK_ZONE_CHANNEL_TRANSPOSE = 33272,    // w: bool.
};

}
