#include "Host/common/posix/RtMidiSystem.h"

#include "Platform/MonotonicClock.h"

#include <unistd.h>

#include <utility>

namespace Host {

namespace {

constexpr const char* ALSA_SEQUENCER = "/dev/snd/seq";
constexpr const char* IN = " in";
constexpr const char* OUT = " out";

void ignoreError(RtMidiError::Type, const std::string&, void*) {}

// Whether a port is one of this desk's own: its client is called as the desk's clients are, perhaps with a number that
// the server gave it.
bool isOwn(const std::string& port, const std::string& clientName) {
    for (const char* direction : {IN, OUT}) {
        const std::string own = clientName + direction;
        if (port.starts_with(own + ":") || port.starts_with(own + "-"))
            return true;
    }
    return false;
}

// The sequencer's names end in its numbers (" 20:0"), which change from one day to the next.
std::string lastingName(const std::string& name, RtMidi::Api api) {
    if (api != RtMidi::LINUX_ALSA)
        return name;
    const std::size_t blank = name.rfind(' ');
    const bool isNumbers = blank != std::string::npos && blank + 1 < name.size() &&
                           name.find_first_not_of("0123456789:", blank + 1) == std::string::npos;
    return isNumbers ? name.substr(0, blank) : name;
}

// The numbers and names of all ports that are not the desk's own.
struct FoundPort {
    unsigned number;
    std::string name;
};

std::vector<FoundPort> findPorts(RtMidi& midi, RtMidi::Api api, const std::string& clientName) {
    std::vector<FoundPort> found;
    const unsigned count = midi.getPortCount();
    for (unsigned number = 0; number < count; ++number) {
        const std::string name = midi.getPortName(number);
        if (!name.empty() && !isOwn(name, clientName))
            found.push_back({number, lastingName(name, api)});
    }
    return found;
}

std::vector<MidiPortId> idsOf(const std::vector<FoundPort>& ports) {
    std::vector<std::string> names;
    names.reserve(ports.size());
    for (const FoundPort& port : ports)
        names.push_back(port.name);
    return numberCopies(names);
}

// Opens the port of this name and copy. False if it is not there.
bool openNamed(RtMidi& midi, RtMidi::Api api, const std::string& clientName, const MidiPortId& id) {
    const std::vector<FoundPort> ports = findPorts(midi, api, clientName);
    const std::vector<MidiPortId> ids = idsOf(ports);
    for (std::size_t i = 0; i < ids.size(); ++i) {
        if (ids[i] != id)
            continue;
        midi.openPort(ports[i].number, id.name);
        return midi.isPortOpen();
    }
    return false;
}

class OpenInput : public OpenMidiPort {
public:
    OpenInput(RtMidi::Api api, const std::string& client, std::shared_ptr<JackServer> jack, MidiReceiver receiver)
        : m_jack(std::move(jack)), m_receiver(std::move(receiver)), m_midi(api, client) {
        m_midi.setErrorCallback(ignoreError, nullptr);
        m_midi.ignoreTypes(true, false, true);
        m_midi.setCallback(receive, this);
    }

    ~OpenInput() override { m_midi.closePort(); }
    OpenInput(const OpenInput&) = delete;
    OpenInput& operator=(const OpenInput&) = delete;

    bool send(const std::uint8_t*, std::size_t, std::int64_t) override { return false; }

    RtMidiIn& midi() { return m_midi; }

private:
    static void receive(double, std::vector<unsigned char>* message, void* self) {
        if (message)
            static_cast<OpenInput*>(self)->m_receiver(message->data(), message->size(),
                                                      Platform::monotonicMicroseconds());
    }

    const std::shared_ptr<JackServer> m_jack;  // Outlives the port.
    const MidiReceiver m_receiver;
    RtMidiIn m_midi;
};

class OpenOutput : public OpenMidiPort {
public:
    OpenOutput(RtMidi::Api api, const std::string& client, std::shared_ptr<JackServer> jack)
        : m_jack(std::move(jack)), m_midi(api, client) {
        m_midi.setErrorCallback(ignoreError, nullptr);
    }

    ~OpenOutput() override { m_midi.closePort(); }
    OpenOutput(const OpenOutput&) = delete;
    OpenOutput& operator=(const OpenOutput&) = delete;

    bool send(const std::uint8_t* bytes, std::size_t count, std::int64_t) override {
        // Without its server the library would wait for room for ever.
        if (m_jack && !m_jack->isAlive())
            return false;
        m_midi.sendMessage(bytes, count);
        return true;
    }

    RtMidiOut& midi() { return m_midi; }

private:
    const std::shared_ptr<JackServer> m_jack;
    RtMidiOut m_midi;
};

}

RtMidiSystem::RtMidiSystem(std::string clientName) : m_clientName(std::move(clientName)) {
    look();
}

// Decides where ports are, and remembers it.
RtMidiSystem::Place RtMidiSystem::look() {
    const std::lock_guard lock(m_mutex);
    if (m_place.jack && m_place.jack->isAlive())
        return m_place;
    m_place = {};
    if (auto jack = JackServer::connect(m_clientName)) {
        const std::string clientName = jack->name();
        m_place = {RtMidi::UNIX_JACK, std::move(jack), clientName};
    } else if (access(ALSA_SEQUENCER, R_OK | W_OK) == 0) {
        m_place = {RtMidi::LINUX_ALSA, nullptr, m_clientName};
    }
    return m_place;
}

RtMidiSystem::Place RtMidiSystem::place() {
    const std::lock_guard lock(m_mutex);
    return m_place;
}

std::string RtMidiSystem::name() {
    switch (place().api) {
        case RtMidi::UNIX_JACK: return "JACK";
        case RtMidi::LINUX_ALSA: return "ALSA";
        default: return "none";
    }
}

MidiPortIds RtMidiSystem::list() {
    const Place now = look();
    if (now.api == RtMidi::UNSPECIFIED)
        return {};
    try {
        RtMidiIn in(now.api, now.clientName + IN);
        in.setErrorCallback(ignoreError, nullptr);
        RtMidiOut out(now.api, now.clientName + OUT);
        out.setErrorCallback(ignoreError, nullptr);
        return {idsOf(findPorts(in, now.api, now.clientName)), idsOf(findPorts(out, now.api, now.clientName))};
    } catch (const RtMidiError&) {
        return {};
    }
}

std::unique_ptr<OpenMidiPort> RtMidiSystem::openInput(const MidiPortId& id, MidiReceiver receiver) {
    const Place now = place();
    if (now.api == RtMidi::UNSPECIFIED)
        return nullptr;
    auto port = std::make_unique<OpenInput>(now.api, now.clientName + IN, now.jack, std::move(receiver));
    if (!openNamed(port->midi(), now.api, now.clientName, id))
        return nullptr;
    return port;
}

std::unique_ptr<OpenMidiPort> RtMidiSystem::openOutput(const MidiPortId& id) {
    const Place now = place();
    if (now.api == RtMidi::UNSPECIFIED)
        return nullptr;
    auto port = std::make_unique<OpenOutput>(now.api, now.clientName + OUT, now.jack);
    if (!openNamed(port->midi(), now.api, now.clientName, id))
        return nullptr;
    return port;
}

bool RtMidiSystem::hasVirtualPorts() {
    return place().api != RtMidi::UNSPECIFIED;
}

std::unique_ptr<OpenMidiPort> RtMidiSystem::openVirtualInput(const std::string& name, MidiReceiver receiver) {
    const Place now = place();
    if (now.api == RtMidi::UNSPECIFIED)
        return nullptr;
    auto port = std::make_unique<OpenInput>(now.api, now.clientName + IN, now.jack, std::move(receiver));
    port->midi().openVirtualPort(name);
    return port;
}

std::unique_ptr<OpenMidiPort> RtMidiSystem::openVirtualOutput(const std::string& name) {
    const Place now = place();
    if (now.api == RtMidi::UNSPECIFIED)
        return nullptr;
    auto port = std::make_unique<OpenOutput>(now.api, now.clientName + OUT, now.jack);
    port->midi().openVirtualPort(name);
    return port;
}

std::shared_ptr<MidiSystem> createMidiSystem(const std::string& clientName) {
    return std::make_shared<RtMidiSystem>(clientName);
}

}
