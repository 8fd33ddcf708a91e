#pragma once

#include "Backend/midi/MirelMidiMessage.h"

#include <string>

namespace Host::Cli {

// [any] "0xSS D1 D2 ch=C out=O": the status without its channel in hexadecimal, data as unsigned bytes.
std::string describeEvent(const Backend::MidiEngine::MirelMidiMessage& message, int channel);

}
