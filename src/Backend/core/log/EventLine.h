#pragma once

#include "Backend/midi/MirelMidiMessage.h"

#include <string>

namespace Backend::Display {

// [any] The log's text for an event, from after the port's name to the end of the line.
std::string describeEvent(const MidiEngine::MirelMidiMessage& message);

}
