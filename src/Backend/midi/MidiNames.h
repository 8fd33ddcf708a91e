// The names of MIDI events and controllers.
#pragma once

#include "Backend/midi/MidiMessage.h"

#include <string_view>

namespace Backend::MidiEngine {

struct EventName {
    MidiMessage::MessageType status;
    const char* name;
    int dataBytes;
};

// [any] The row of an event; null if no event has this status or name. Names are case-sensitive.
const EventName* findEventName(std::uint32_t status);
const EventName* findEventName(std::string_view name);

// [any] The name of a controller, 0 to 127; "Undefined" where there is none.
const char* controllerName(char number);

// [any] General MIDI's name of a program, 0 to 127; "Undefined" beyond.
const char* programName(char number);

}
