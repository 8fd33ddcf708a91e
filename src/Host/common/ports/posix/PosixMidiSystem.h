#pragma once

#include "Host/common/ports/MidiSystem.h"
#include "Host/common/ports/posix/JackServer.h"

#include <memory>
#include <mutex>
#include <string>

namespace Host {

// JACK if a server runs, otherwise ALSA's sequencer if the kernel has one, otherwise nothing. Each scan decides afresh,
// as a server may come and go while the desk runs.
class PosixMidiSystem : public MidiSystem {
public:
    explicit PosixMidiSystem(std::string clientName);

    std::string name() override;
    MidiPortIds list() override;
    std::unique_ptr<OpenMidiPort> openInput(const MidiPortId& id, MidiReceiver receiver) override;
    std::unique_ptr<OpenMidiPort> openOutput(const MidiPortId& id) override;
    bool hasVirtualPorts() override;
    std::unique_ptr<OpenMidiPort> openVirtualInput(const std::string& name, MidiReceiver receiver) override;
    std::unique_ptr<OpenMidiPort> openVirtualOutput(const std::string& name) override;
    void beginClose() override;

private:
    // Where ports are at the moment: at the server, otherwise with ALSA if it exists.
    struct Place {
        std::shared_ptr<JackServer> jack;
        bool isAlsa = false;
    };

    Place look();
    Place place();

    const std::string m_clientName;
    std::mutex m_mutex;  // Guards the place.
    Place m_place;
};

}
