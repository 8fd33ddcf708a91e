#include "Host/common/ports/posix/JackServer.h"

#include "Host/common/ports/AbandonableThread.h"
#include "Host/common/ports/MidiByteParser.h"
#include "Host/common/ports/OutputQueue.h"
#include "Platform/MonotonicClock.h"
#include "Platform/Sleep.h"

#include <jack/jack.h>
#include <jack/midiport.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace Host {

namespace {

constexpr int MAX_DESKS = 20;
// A working server never takes this long for a cycle, or to send what is queued.
constexpr std::int64_t PATIENCE_MICROSECONDS = 500000;
// The prefix of the ports through which a desk reaches other programs' ports. A name exists from the port's first
// moment, unlike an alias or a property.
constexpr std::string_view FROM = "from ";
constexpr std::string_view TO = "to ";

void ignoreText(const char*) {}

// The library keeps process-wide state that a second server must not meet (see JackServer::connect), so all of the
// process's places are recorded here.
struct Places {
    std::mutex connecting;  // One attempt at a time.
    std::mutex mutex;       // Guards what follows; never held while the server is at work.
    std::vector<JackServer*> all;
    bool isAttempted = false;  // An attempt to get another one is under way, or hangs.
};

// Never destroyed, because an attempt that hangs may end at any time.
Places& places() {
    static Places& known = *new Places;
    return known;
}

// Shared by whoever waits for a place and the thread that asks the server for it.
struct Attempt {
    std::mutex mutex;
    bool isAbandoned = false;
    std::shared_ptr<JackServer> place;
};

}

// What a slot of the client is used for.
enum class JackUse {
    FREE,
    INPUT,
    OUTPUT,
    SILENT,  // An output that plays nothing more. Otherwise each cycle would repeat what it played last.
    RETIRED,
};

struct JackServer::Slot {
    std::atomic<JackUse> use{JackUse::FREE};
    std::atomic<bool> isReplaced{false};  // The port that it is connected to has gone and come back as another one.
    // What follows changes only while the slot is free.
    jack_port_t* port = nullptr;
    std::string other;  // The name of that port; empty for one of the desk's own.
    MidiReceiver receiver;
    OutputQueue queue;
};

class JackServer::Port : public OpenMidiPort {
public:
    Port(std::shared_ptr<JackServer> server, Slot& slot, bool isInput)
        : m_server(std::move(server)), m_slot(slot), m_isInput(isInput) {}

    // Waits as long as a hanging server hangs. So the closing thread learns that the server hung, and what is queued,
    // such as the ends of notes, plays if the server recovers while the program still exists.
    ~Port() override {
        while (!m_slot.queue.isEmpty() && m_server->isAlive())
            Platform::sleepMilliseconds(1);
        if (!m_isInput) {
            m_slot.use = JackUse::SILENT;
            waitForCycles();
        }
        m_slot.use = JackUse::RETIRED;
        // Until the server's thread has certainly left the slot.
        waitForCycles();
        if (m_server->isAlive() && !m_server->m_isLeaving)
            m_server->unregisterPort(m_slot.port);
        m_slot.receiver = nullptr;
        OutputEvent left;
        while (m_slot.queue.pop(left)) {
        }
        m_slot.use = JackUse::FREE;
    }

    Port(const Port&) = delete;
    Port& operator=(const Port&) = delete;

    bool send(const std::uint8_t* bytes, std::size_t count, std::int64_t microseconds) override {
        std::uint32_t word = 0;
        for (std::size_t i = 0; i < std::min<std::size_t>(count, 3); ++i)
            word |= std::uint32_t{bytes[i]} << 8 * i;
        while (m_server->isAlive() && !m_isInput) {
            if (m_slot.queue.push({word, microseconds}))
                return true;
            Platform::sleepMilliseconds(1);
        }
        return false;
    }

    void flush() override {
        const std::int64_t limit = Platform::monotonicMicroseconds() + PATIENCE_MICROSECONDS;
        while (!m_slot.queue.isEmpty() && m_server->isAlive() && Platform::monotonicMicroseconds() < limit)
            Platform::sleepMilliseconds(1);
        // The cycle after the last one with events empties its buffer; otherwise the server would repeat it over and
        // over while the program is paused.
        m_server->waitForCycles(2);
    }

private:
    void waitForCycles() const {
        while (!m_server->waitForCycles(2)) {
        }
    }

    const std::shared_ptr<JackServer> m_server;
    Slot& m_slot;
    const bool m_isInput;
};

std::shared_ptr<JackServer> JackServer::connect(const std::string& clientName, std::chrono::milliseconds limit) {
    const std::lock_guard oneAtATime(places().connecting);
    const auto deadline = std::chrono::steady_clock::now() + limit;
    {
        const std::lock_guard lock(places().mutex);
        // The library would confuse a new client with that of a server that has gone.
        const auto& all = places().all;
        if (places().isAttempted ||
            std::any_of(all.begin(), all.end(), [](const JackServer* place) { return !place->isAlive(); }))
            return nullptr;
        places().isAttempted = true;
    }
    // When a server hangs, the library waits for it without a limit.
    const auto attempt = std::make_shared<Attempt>();
    AbandonableThread thread("jack connect", [attempt, clientName] {
        std::shared_ptr<JackServer> place = openPlace(clientName);
        {
            const std::lock_guard lock(attempt->mutex);
            if (!attempt->isAbandoned)
                attempt->place = std::move(place);
        }
        place = nullptr;  // Too late for this caller; the next one may get another.
        const std::lock_guard lock(places().mutex);
        places().isAttempted = false;
    });
    thread.waitUntilEnded(deadline);
    const std::lock_guard lock(attempt->mutex);
    attempt->isAbandoned = true;
    return std::move(attempt->place);
}

std::shared_ptr<JackServer> JackServer::openPlace(const std::string& clientName) {
    // A computer without the server is normal.
    jack_set_error_function(ignoreText);
    jack_set_info_function(ignoreText);
    for (int number = 1; number <= MAX_DESKS; ++number) {
        const std::string name = number == 1 ? clientName : clientName + " " + std::to_string(number);
        jack_status_t status = {};
        jack_client_t* client =
            jack_client_open(name.c_str(), static_cast<jack_options_t>(JackNoStartServer | JackUseExactName), &status);
        if (client) {
            std::shared_ptr<JackServer> place(new JackServer(client, clientName, name), leave);
            const std::lock_guard lock(places().mutex);
            places().all.push_back(place.get());
            return place;
        }
        // A server that refuses a taken name only reports that something went wrong.
        if ((status & JackServerFailed) != 0)
            break;
    }
    return nullptr;
}

JackServer::JackServer(jack_client_t* client, std::string clientName, std::string name)
    : m_client(client), m_clientName(std::move(clientName)), m_name(std::move(name)), m_slots(MAX_SLOTS) {
    jack_on_shutdown(m_client, goneCallback, this);
    jack_set_process_callback(m_client, processCallback, this);
    jack_set_port_registration_callback(m_client, registeredCallback, this);
    jack_set_graph_order_callback(m_client, graphCallback, this);
    if (jack_activate(m_client) != 0)
        m_isAlive = false;
}

void JackServer::leave(JackServer* place) {
    // A hanging server would hold up the end of the program. It may recover and call back, so everything stays in
    // place.
    if (!place->waitForCycles(1))
        return;
    jack_client_close(place->m_client);
    const std::lock_guard lock(places().mutex);
    std::erase(places().all, place);
    delete place;
}

JackServer::~JackServer() {
    for (const auto& slot : m_slots)
        delete slot.load();
}

void JackServer::goneCallback(void* self) {
    static_cast<JackServer*>(self)->m_isAlive = false;
}

// The server waits for this, so ask it for nothing but the name.
void JackServer::registeredCallback(std::uint32_t port, int isRegistered, void* self) {
    auto& server = *static_cast<JackServer*>(self);
    server.m_lastChange = server.m_cycles.load();
    const char* name = isRegistered != 0 ? jack_port_name(jack_port_by_id(server.m_client, port)) : nullptr;
    if (!name)
        return;
    const std::lock_guard lock(server.m_newcomersMutex);
    server.m_newcomers.emplace_back(name);
}

int JackServer::graphCallback(void* self) {
    auto& server = *static_cast<JackServer*>(self);
    server.m_lastChange = server.m_cycles.load();
    return 0;
}

int JackServer::processCallback(std::uint32_t frames, void* self) {
    static_cast<JackServer*>(self)->process(frames);
    return 0;
}

void JackServer::process(std::uint32_t frames) {
    for (const auto& entry : m_slots) {
        Slot* slot = entry.load(std::memory_order_acquire);
        if (!slot)
            break;
        switch (slot->use.load(std::memory_order_acquire)) {
            case JackUse::INPUT: processInput(*slot, frames); break;
            case JackUse::OUTPUT: processOutput(*slot, frames); break;
            case JackUse::SILENT: clearOutput(*slot, frames); break;
            case JackUse::FREE:
            case JackUse::RETIRED: break;
        }
    }
    m_cycles.fetch_add(1, std::memory_order_release);
}

void JackServer::processInput(const Slot& slot, std::uint32_t frames) {
    void* buffer = jack_port_get_buffer(slot.port, frames);
    const std::uint32_t count = buffer ? jack_midi_get_event_count(buffer) : 0;
    if (count == 0)
        return;
    // Converts the arrival time from the server's clock to the desk's. What arrives now came during the previous cycle.
    const auto serverNow = static_cast<std::int64_t>(jack_get_time());
    const std::int64_t toDesk = Platform::monotonicMicroseconds() - serverNow;
    const jack_nframes_t before = jack_last_frame_time(m_client) - frames;
    for (std::uint32_t i = 0; i < count; ++i) {
        jack_midi_event_t event = {};
        if (jack_midi_event_get(&event, buffer, i) != 0)
            continue;
        const auto came = static_cast<std::int64_t>(jack_frames_to_time(m_client, before + event.time));
        slot.receiver(event.buffer, event.size, std::min(came, serverNow) + toDesk);
    }
}

// Its buffer for this cycle, emptied; null if there is none.
void* JackServer::clearOutput(const Slot& slot, std::uint32_t frames) {
    void* buffer = jack_port_get_buffer(slot.port, frames);
    if (buffer)
        jack_midi_clear_buffer(buffer);
    return buffer;
}

void JackServer::processOutput(Slot& slot, std::uint32_t frames) {
    void* buffer = clearOutput(slot, frames);
    if (!buffer)
        return;
    OutputEvent event;
    std::array<jack_midi_data_t, 3> bytes{};
    while (jack_midi_max_event_size(buffer) >= bytes.size() && slot.queue.pop(event)) {
        bytes = {event.status(), event.d1(), event.d2()};
        jack_midi_event_write(buffer, 0, bytes.data(), 1 + MidiByteParser::dataBytesOf(event.status()));
    }
}

// False if the server has stopped running cycles. A server that has gone has certainly left every slot.
bool JackServer::waitForCycles(std::uint32_t count) const {
    const std::uint32_t first = m_cycles;
    const std::int64_t limit = Platform::monotonicMicroseconds() + PATIENCE_MICROSECONDS;
    while (m_isAlive && m_cycles - first < count) {
        if (Platform::monotonicMicroseconds() > limit)
            return false;
        Platform::sleepMilliseconds(1);
    }
    return true;
}

jack_port_t* JackServer::registerPort(const std::string& name, bool isInput) {
    const std::lock_guard lock(m_portsMutex);
    m_lastChange = m_cycles.load();
    return jack_port_register(m_client, name.c_str(), JACK_DEFAULT_MIDI_TYPE,
                              isInput ? JackPortIsInput : JackPortIsOutput, 0);
}

// The library keeps the desk's ports in a list that it walks, on a thread of its own and without a lock, a few cycles
// after any program has changed something. A port must not leave the list during that walk.
void JackServer::unregisterPort(jack_port_t* port) {
    const std::lock_guard lock(m_portsMutex);
    waitForCalm();
    m_lastChange = m_cycles.load();
    jack_port_unregister(m_client, port);
}

void JackServer::waitForCalm() const {
    constexpr std::uint32_t CALM_CYCLES = 4;
    const std::int64_t limit = Platform::monotonicMicroseconds() + PATIENCE_MICROSECONDS;
    while (m_isAlive && m_cycles - m_lastChange < CALM_CYCLES && Platform::monotonicMicroseconds() < limit)
        Platform::sleepMilliseconds(1);
}

std::vector<std::string> JackServer::otherPorts(unsigned long flags) {
    if (!m_isAlive)
        return {};
    const char** found = jack_get_ports(m_client, nullptr, JACK_DEFAULT_MIDI_TYPE, flags);
    std::vector<std::string> names;
    for (const char** name = found; name && *name; ++name)
        if (const std::string text = *name; !text.starts_with(m_name + ":") && !isOfADesk(text) && !isReplaced(text))
            names.push_back(text);
    jack_free(found);
    return names;
}

// Whether a desk created the port to reach another one. Ports that a desk offers to other programs don't count.
bool JackServer::isOfADesk(const std::string& port) const {
    std::string_view rest = port;
    if (!rest.starts_with(m_clientName))
        return false;
    rest.remove_prefix(m_clientName.size());
    const std::size_t colon = rest.find(':');
    if (colon == std::string_view::npos)
        return false;
    const std::string_view number = rest.substr(0, colon);
    const bool isNumbered = number.size() > 1 && number.front() == ' ' &&
                            number.find_first_not_of("0123456789", 1) == std::string_view::npos;
    rest.remove_prefix(colon + 1);
    return (number.empty() || isNumbered) && (rest.starts_with(FROM) || rest.starts_with(TO));
}

void JackServer::findReplaced() {
    std::vector<std::string> newcomers;
    {
        const std::lock_guard lock(m_newcomersMutex);
        newcomers.swap(m_newcomers);
    }
    if (!m_isAlive)
        return;
    for (const auto& entry : m_slots) {
        Slot* slot = entry.load(std::memory_order_acquire);
        if (!slot)
            break;
        const JackUse use = slot->use;
        if ((use == JackUse::INPUT || use == JackUse::OUTPUT) &&
            std::find(newcomers.begin(), newcomers.end(), slot->other) != newcomers.end() &&
            jack_port_connected_to(slot->port, slot->other.c_str()) == 0)
            slot->isReplaced = true;
    }
}

bool JackServer::isReplaced(const std::string& other) const {
    return std::any_of(m_slots.begin(), m_slots.end(), [&other](const auto& entry) {
        const Slot* slot = entry.load(std::memory_order_acquire);
        return slot && slot->use != JackUse::FREE && slot->isReplaced && slot->other == other;
    });
}

MidiPortIds JackServer::list() {
    const std::lock_guard lock(m_mutex);
    findReplaced();
    return {numberCopies(otherPorts(JackPortIsOutput)), numberCopies(otherPorts(JackPortIsInput))};
}

JackServer::Slot* JackServer::takeFreeSlot() {
    for (auto& entry : m_slots) {
        Slot* slot = entry.load();
        if (!slot) {
            slot = new Slot;
            entry.store(slot, std::memory_order_release);
        }
        if (slot->use == JackUse::FREE)
            return slot;
    }
    return nullptr;
}

std::unique_ptr<OpenMidiPort> JackServer::open(const std::string& name, const std::string& other, MidiReceiver receiver,
                                               bool isInput) {
    const std::lock_guard lock(m_mutex);
    Slot* slot = m_isAlive ? takeFreeSlot() : nullptr;
    if (!slot)
        return nullptr;
    const std::size_t room = static_cast<std::size_t>(jack_port_name_size()) - m_name.size() - 2;
    std::string portName = name.substr(0, room);
    std::replace(portName.begin(), portName.end(), ':', ' ');  // Separates clients and ports.
    slot->port = registerPort(portName, isInput);
    if (!slot->port)
        return nullptr;
    slot->receiver = std::move(receiver);
    slot->other = other;
    slot->isReplaced = false;
    slot->use = isInput ? JackUse::INPUT : JackUse::OUTPUT;
    auto port = std::make_unique<Port>(shared_from_this(), *slot, isInput);
    const std::string own = jack_port_name(slot->port);
    const bool isConnected = other.empty() || jack_connect(m_client, isInput ? other.c_str() : own.c_str(),
                                                           isInput ? own.c_str() : other.c_str()) == 0;
    if (!isConnected)
        return nullptr;
    // The server makes changes between two cycles; whatever is sent before is lost.
    waitForCycles(2);
    return port;
}

std::unique_ptr<OpenMidiPort> JackServer::openInput(const std::string& from, MidiReceiver receiver) {
    return open(std::string(FROM) + from, from, std::move(receiver), true);
}

std::unique_ptr<OpenMidiPort> JackServer::openOutput(const std::string& to) {
    return open(std::string(TO) + to, to, nullptr, false);
}

std::unique_ptr<OpenMidiPort> JackServer::openVirtualInput(const std::string& name, MidiReceiver receiver) {
    return open(name + " in", {}, std::move(receiver), true);
}

std::unique_ptr<OpenMidiPort> JackServer::openVirtualOutput(const std::string& name) {
    return open(name + " out", {}, nullptr, false);
}

}
