#include "Host/common/ports/posix/PosixMidiSystem.h"

#include "Host/common/ports/posix/AlsaPorts.h"

#include <utility>

namespace Host {

PosixMidiSystem::PosixMidiSystem(std::string clientName) : m_clientName(std::move(clientName)) {
    look();
}

// Decides where ports are, and remembers it.
PosixMidiSystem::Place PosixMidiSystem::look() {
    Place now = place();
    if (now.jack && now.jack->isAlive())
        return now;
    // Connecting may take as long as the server does, so the lock is not held meanwhile.
    now = {};
    {
        const std::lock_guard lock(m_mutex);
        std::swap(m_place, now);
    }
    now = {};
    now.jack = JackServer::connect(m_clientName);
    now.isAlsa = !now.jack && AlsaPorts::areThere();
    const std::lock_guard lock(m_mutex);
    m_place = now;
    return now;
}

PosixMidiSystem::Place PosixMidiSystem::place() {
    const std::lock_guard lock(m_mutex);
    return m_place;
}

std::string PosixMidiSystem::name() {
    const Place now = place();
    return now.jack ? "JACK" : now.isAlsa ? "ALSA" : "none";
}

MidiPortIds PosixMidiSystem::list() {
    const Place now = look();
    if (now.jack)
        return now.jack->list();
    return now.isAlsa ? AlsaPorts::list(m_clientName) : MidiPortIds();
}

std::unique_ptr<OpenMidiPort> PosixMidiSystem::openInput(const MidiPortId& id, MidiReceiver receiver) {
    const Place now = place();
    if (now.jack)
        return now.jack->openInput(id.name, std::move(receiver));
    return now.isAlsa ? AlsaPorts::openInput(m_clientName, id, std::move(receiver)) : nullptr;
}

std::unique_ptr<OpenMidiPort> PosixMidiSystem::openOutput(const MidiPortId& id) {
    const Place now = place();
    if (now.jack)
        return now.jack->openOutput(id.name);
    return now.isAlsa ? AlsaPorts::openOutput(m_clientName, id) : nullptr;
}

bool PosixMidiSystem::hasVirtualPorts() {
    const Place now = place();
    return now.jack || now.isAlsa;
}

std::unique_ptr<OpenMidiPort> PosixMidiSystem::openVirtualInput(const std::string& name, MidiReceiver receiver) {
    const Place now = place();
    if (now.jack)
        return now.jack->openVirtualInput(name, std::move(receiver));
    return now.isAlsa ? AlsaPorts::openVirtualInput(m_clientName, name, std::move(receiver)) : nullptr;
}

std::unique_ptr<OpenMidiPort> PosixMidiSystem::openVirtualOutput(const std::string& name) {
    const Place now = place();
    if (now.jack)
        return now.jack->openVirtualOutput(name);
    return now.isAlsa ? AlsaPorts::openVirtualOutput(m_clientName, name) : nullptr;
}

void PosixMidiSystem::beginClose() {
    if (const Place now = place(); now.jack)
        now.jack->beginClose();
}

std::shared_ptr<MidiSystem> createMidiSystem(const std::string& clientName) {
    return std::make_shared<PosixMidiSystem>(clientName);
}

}
