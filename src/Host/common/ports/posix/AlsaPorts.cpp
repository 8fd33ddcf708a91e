#include "Host/common/ports/posix/AlsaPorts.h"

#include "Platform/MonotonicClock.h"

#include <RtMidi.h>
#include <unistd.h>

#include <algorithm>
#include <utility>

namespace Host::AlsaPorts {

namespace {

constexpr const char* SEQUENCER = "/dev/snd/seq";
constexpr RtMidi::Api API = RtMidi::LINUX_ALSA;

void ignoreError(RtMidiError::Type, const std::string&, void*) {}

// The sequencer's names end in its numbers (" 20:0"), which change from one day to the next.
std::string lastingName(const std::string& name) {
    const std::size_t blank = name.rfind(' ');
    const bool isNumbers = blank != std::string::npos && blank + 1 < name.size() &&
                           name.find_first_not_of("0123456789:", blank + 1) == std::string::npos;
    return isNumbers ? name.substr(0, blank) : name;
}

// The numbers and ids of all ports that don't belong to the desk.
struct Found {
    std::vector<unsigned> numbers;
    std::vector<MidiPortId> ids;
};

Found find(RtMidi& midi, const std::string& clientName) {
    Found found;
    std::vector<std::string> names;
    const unsigned count = midi.getPortCount();
    for (unsigned number = 0; number < count; ++number) {
        const std::string name = midi.getPortName(number);
        if (name.empty() || name.starts_with(clientName + ":"))
            continue;
        found.numbers.push_back(number);
        names.push_back(lastingName(name));
    }
    found.ids = numberCopies(names);
    return found;
}

// False if there is no such port.
bool open(RtMidi& midi, const std::string& clientName, const MidiPortId& id) {
    const Found found = find(midi, clientName);
    const auto place = std::find(found.ids.begin(), found.ids.end(), id);
    if (place == found.ids.end())
        return false;
    midi.openPort(found.numbers[static_cast<std::size_t>(place - found.ids.begin())], id.name);
    return midi.isPortOpen();
}

class Input : public OpenMidiPort {
public:
    Input(const std::string& clientName, MidiReceiver receiver)
        : m_receiver(std::move(receiver)), m_midi(API, clientName) {
        m_midi.setErrorCallback(ignoreError, nullptr);
        m_midi.ignoreTypes(true, false, true);
        m_midi.setCallback(receive, this);
    }

    ~Input() override { m_midi.closePort(); }
    Input(const Input&) = delete;
    Input& operator=(const Input&) = delete;

    bool send(const std::uint8_t*, std::size_t, std::int64_t) override { return false; }
    RtMidiIn& midi() { return m_midi; }

private:
    static void receive(double, std::vector<unsigned char>* message, void* self) {
        if (message)
            static_cast<Input*>(self)->m_receiver(message->data(), message->size(), Platform::monotonicMicroseconds());
    }

    const MidiReceiver m_receiver;
    RtMidiIn m_midi;
};

class Output : public OpenMidiPort {
public:
    explicit Output(const std::string& clientName) : m_midi(API, clientName) {
        m_midi.setErrorCallback(ignoreError, nullptr);
    }

    ~Output() override { m_midi.closePort(); }
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    bool send(const std::uint8_t* bytes, std::size_t count, std::int64_t) override {
        m_midi.sendMessage(bytes, count);
        return true;
    }

    RtMidiOut& midi() { return m_midi; }

private:
    RtMidiOut m_midi;
};

}

bool areThere() {
    return access(SEQUENCER, R_OK | W_OK) == 0;
}

MidiPortIds list(const std::string& clientName) {
    try {
        RtMidiIn in(API, clientName);
        in.setErrorCallback(ignoreError, nullptr);
        RtMidiOut out(API, clientName);
        out.setErrorCallback(ignoreError, nullptr);
        return {find(in, clientName).ids, find(out, clientName).ids};
    } catch (const RtMidiError&) {
        return {};
    }
}

std::unique_ptr<OpenMidiPort> openInput(const std::string& clientName, const MidiPortId& id, MidiReceiver receiver) {
    auto port = std::make_unique<Input>(clientName, std::move(receiver));
    if (!open(port->midi(), clientName, id))
        return nullptr;
    return port;
}

std::unique_ptr<OpenMidiPort> openOutput(const std::string& clientName, const MidiPortId& id) {
    auto port = std::make_unique<Output>(clientName);
    if (!open(port->midi(), clientName, id))
        return nullptr;
    return port;
}

std::unique_ptr<OpenMidiPort> openVirtualInput(const std::string& clientName, const std::string& name,
                                               MidiReceiver receiver) {
    auto port = std::make_unique<Input>(clientName, std::move(receiver));
    port->midi().openVirtualPort(name);
    return port;
}

std::unique_ptr<OpenMidiPort> openVirtualOutput(const std::string& clientName, const std::string& name) {
    auto port = std::make_unique<Output>(clientName);
    port->midi().openVirtualPort(name);
    return port;
}

}
