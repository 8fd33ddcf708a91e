#pragma once

#include "Backend/midi/MirelMidiMessage.h"

#include <string>

namespace Backend::Display {

// [any] What the log says of an event behind the name of its port, to the end of the line.
std::string describeEvent(const MidiEngine::MirelMidiMessage& message);

}
