// Messages from the backend to the main window. w and l are the two words; "heap" is a pointer to a copy that the
// window destroys. Those of the components stand in their own headers.
#pragma once

#include "Platform/WindowTypes.h"

namespace Backend::WindowMessages {

enum Number : UINT {
    DOCK_TO_BOTTOM_EDGE_CHANGED = 33219,           // w: bool.
    DEFAULT_BANK_CHANGED = 33220,                  // l: heap string.
    BANK_CHANGED = 33221,                          // l: heap Bank.
    PROGRAM_CHANGED = 33222,                       // l: heap Program.
    PROGRAM_NAME_CHANGED = 33223,                  // l: heap Program.
    DISPLAY_NUMBERS_CHANGED = 33224,               // w: bool.
    LARGE_DISPLAY_FONT_CHANGED = 33225,            // w: bool.
    DISPLAY_MIDI_INPUT_EVENTS_CHANGED = 33226,     // w: bool.
    DISPLAY_MIDI_OUTPUT_EVENTS_CHANGED = 33227,    // w: bool.
    MOVE_WINDOW = 33228,                           // w: heap RelativeFixedValue for x; l: the same for y.
    SHOW_SYSTEM_PANEL = 33229,                     // w: bool.
    TOGGLE_SYSTEM_PANEL = 33230,                   //
    SHOW_HELP = 33231,                             // w: bool.
    TOGGLE_HELP = 33232,                           //
    SHOW_DISPLAY = 33233,                          // w: bool.
    TOGGLE_DISPLAY = 33234,                        //
    SHOW_COMPUTER_INPUT = 33239,                   // w: bool.
    TOGGLE_COMPUTER_INPUT = 33240,                 //
    SHOW_CONTROL = 33243,                          // w: bool.
    TOGGLE_CONTROL = 33244,                        //
    SHOW_OUTPUT = 33245,                           // w: bool.
    TOGGLE_OUTPUT = 33246,                         //
    SHOW_CC = 33247,                               // w: bool.
    TOGGLE_CC = 33248,                             //
    SHOW_LAYER = 33249,                            // w: bool.
    TOGGLE_LAYER = 33250,                          //
    SHOW_ZONE = 33251,                             // w: bool.
    TOGGLE_ZONE = 33252,                           //
    DISPLAY_MIDI_OUTPUT_EVENT = 33254,             // w, l: a MirelMidiMessage as getWparam and getLparam pack it.
    MIDI_INPUT_PORTS_CHANGED = 33255,              // l: heap vector of MidiInputPort.
    MIDI_OUTPUT_PORTS_CHANGED = 33256,             // l: heap vector of MidiOutputPort.
    DEFAULT_MIDI_OUTPUT_CHANGED = 33257,           // w: index, or -1.
    RESET_MIREL = 33258,                           //
    SHOW_PROGRAM_MENU = 33259,                     //
    SHOW_DEFAULT_MIDI_OUTPUT_MENU = 33260,         //
    ALWAYS_ON_TOP_CHANGED = 33261,                 // w: bool.
    USE_SKIN_BORDER_CHANGED = 33262,               // w: bool.
    RETRO_RECORD_BUFFER_SIZE_CHANGED = 33263,      // w: int. Nothing sends it.
    RETRO_RECORD_ENABLED_CHANGED = 33264,          // w: bool. Nothing sends it.
    MIDI_THRU_CHANGED = 33265,                     // w: bool.
    GLOBAL_KEYBOARD_CHANGED = 33266,               // w: bool.
    MOUSE_SENSITIVITY_CHANGED = 33267,             // w: int.
    CLICK_ZONE_CHANNEL_TRANSPOSE_CHANGED = 33268,  // w: bool.
};

// Posted to the window that a file operation was given, once it is done. No words.
enum Done : UINT {
    SAVE_TO_PROGRAM_DONE = 32881,
    SAVE_TO_BANK_DONE = 32882,  // Also of the current bank.
    CHANGE_BANK_SIZE_DONE = 32883,
    IMPORT_VERSION_2_BANK_DONE = 32891,
    IMPORT_VERSION_2_PROGRAM_DONE = 32892,
    IMPORT_VERSION_2_PRESET_DONE = 32893,
};

}
