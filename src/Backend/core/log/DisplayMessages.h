// Messages to the display's thread. w and l are the two words; "heap" is a pointer to a copy that the handler destroys.
#pragma once

#include "Platform/WindowTypes.h"

namespace Backend::Display::Messages {

enum Number : UINT {
    STOP = 32869,
    ADD_TEXT = 32870,             // l: heap string.
    SEND_ALL = 32871,             //
    FLUSH = 32872,                //
    ADD_INPUT_EVENT = 32873,      // l: heap MirelMidiMessage.
    ADD_OUTPUT_EVENT = 32874,     // l: heap MirelMidiMessage.
    SET_LISTENER = 32875,         // l: DisplayListener, not owned.
    SET_DISPLAY_NUMBERS = 32876,  // w: bool.
    SET_DISPLAY_INPUTS = 32877,   // w: bool.
    SET_DISPLAY_OUTPUTS = 32878,  // w: bool.
    SET_INPUT_PORTS = 32879,      // w: heap vector of MidiInputPort.
    SET_OUTPUT_PORTS = 32880,     // w: heap vector of MidiOutputPort.
};

}
