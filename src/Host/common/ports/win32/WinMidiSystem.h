#pragma once

#include "Host/common/ports/MidiSystem.h"

namespace Host {

// The multimedia ports of Windows. There are no virtual ones; a port opened by one program may be closed to others.
class WinMidiSystem : public MidiSystem {
public:
    std::string name() override { return "Windows"; }
    MidiPortIds list() override;
    std::unique_ptr<OpenMidiPort> openInput(const MidiPortId& id, MidiReceiver receiver) override;
    std::unique_ptr<OpenMidiPort> openOutput(const MidiPortId& id) override;
    bool hasVirtualPorts() override { return false; }
    std::unique_ptr<OpenMidiPort> openVirtualInput(const std::string&, MidiReceiver) override { return nullptr; }
    std::unique_ptr<OpenMidiPort> openVirtualOutput(const std::string&) override { return nullptr; }
};

}
