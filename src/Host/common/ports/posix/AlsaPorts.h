// The ports of the kernel's sequencer, through RtMidi.
#pragma once

#include "Host/common/ports/MidiSystem.h"

#include <memory>
#include <string>

namespace Host::AlsaPorts {

// [any] Whether there is a sequencer that this user may use.
bool areThere();

// [any] See MidiSystem. The desk's own ports are those of clients whose names begin with its name.
MidiPortIds list(const std::string& clientName);
std::unique_ptr<OpenMidiPort> openInput(const std::string& clientName, const MidiPortId& id, MidiReceiver receiver);
std::unique_ptr<OpenMidiPort> openOutput(const std::string& clientName, const MidiPortId& id);
[[nodiscard]] std::unique_ptr<OpenMidiPort> openVirtualInput(const std::string& clientName, const std::string& name,
                                                             MidiReceiver receiver);
std::unique_ptr<OpenMidiPort> openVirtualOutput(const std::string& clientName, const std::string& name);

}
