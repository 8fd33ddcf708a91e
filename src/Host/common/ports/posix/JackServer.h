#pragma once

#include "Host/common/ports/MidiSystem.h"

#include <jack/types.h>

#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace Host {

// The desk's client of a running JACK server, with all of its ports.
//
// RtMidi's JACK ports are not used: they wait endlessly for a server that has stopped, can't be closed once it has
// gone, and take a client for each port.
class JackServer : public std::enable_shared_from_this<JackServer> {
public:
    static constexpr std::chrono::milliseconds CONNECT_LIMIT{3000};  // Generous, for a busy computer.

    // [any] Registers a client under this name, or with a number after it if another desk has that name. Null if no
    // server runs; none is started. Also null if the server hasn't answered within the limit; the attempt is then
    // abandoned, and until the server answers or goes, nobody in this process can connect. While a client of this
    // process to a server that has gone is still in use, there is no new one. The client closes with its last user,
    // without waiting for a server that hangs.
    static std::shared_ptr<JackServer> connect(const std::string& clientName,
                                               std::chrono::milliseconds limit = CONNECT_LIMIT);

    JackServer(const JackServer&) = delete;
    JackServer& operator=(const JackServer&) = delete;

    // [any] False from the moment the server has gone, or has expelled the desk.
    bool isAlive() const { return m_isAlive; }

    // [any] The desk's name at the server, which is unique.
    const std::string& name() const { return m_name; }

    // [any] The ports of all other programs. Ports through which another desk of the same client name reaches a port
    // are left out: two desks would keep taking them for new ports. One that went and came back since the desk opened
    // it is left out until the desk has closed it: it is a different port of the same name, to which nothing is
    // connected.
    MidiPortIds list();

    // [any] A port of the desk, connected to this port of another program. Null if there is no such port.
    std::unique_ptr<OpenMidiPort> openInput(const std::string& from, MidiReceiver receiver);
    std::unique_ptr<OpenMidiPort> openOutput(const std::string& to);

    // [any] A port of the desk for other programs to connect to. Null if it can't be created.
    [[nodiscard]] std::unique_ptr<OpenMidiPort> openVirtualInput(const std::string& name, MidiReceiver receiver);
    std::unique_ptr<OpenMidiPort> openVirtualOutput(const std::string& name);

    // [any] From now on ports are only closed; they leave the server together, with the desk.
    void beginClose() { m_isLeaving = true; }

private:
    struct Slot;
    class Port;

    JackServer(jack_client_t* client, std::string clientName, std::string name);
    ~JackServer();
    static std::shared_ptr<JackServer> openPlace(const std::string& clientName);
    static void leave(JackServer* place);

    static int processCallback(std::uint32_t frames, void* self);
    static void goneCallback(void* self);
    static void registeredCallback(std::uint32_t port, int isRegistered, void* self);
    static int graphCallback(void* self);

    void process(std::uint32_t frames);
    void processInput(const Slot& slot, std::uint32_t frames);
    static void* clearOutput(const Slot& slot, std::uint32_t frames);
    static void processOutput(Slot& slot, std::uint32_t frames);
    Slot* takeFreeSlot();
    std::unique_ptr<OpenMidiPort> open(const std::string& name, const std::string& other, MidiReceiver receiver,
                                       bool isInput);
    bool waitForCycles(std::uint32_t count) const;
    jack_port_t* registerPort(const std::string& name, bool isInput);
    void unregisterPort(jack_port_t* port);
    void waitForCalm() const;
    std::vector<std::string> otherPorts(unsigned long flags);
    bool isOfADesk(const std::string& port) const;
    void findReplaced();
    bool isReplaced(const std::string& other) const;

    static constexpr std::size_t MAX_SLOTS = 512;

    jack_client_t* m_client;
    const std::string m_clientName;  // Common to all desks, without a number.
    const std::string m_name;
    std::atomic<bool> m_isAlive{true};
    std::atomic<std::uint32_t> m_cycles{0};      // How often the server has had the ports processed; wraps.
    std::atomic<std::uint32_t> m_lastChange{0};  // The cycle in which somebody last changed something at the server.
    std::atomic<bool> m_isLeaving{false};
    std::mutex m_mutex;       // For those who open ports; not for the server's thread.
    std::mutex m_portsMutex;  // Guards the library's list of the desk's ports.
    std::mutex m_newcomersMutex;
    std::vector<std::string> m_newcomers;  // Ports that the server has registered since the last scan.
    // Slots are reused, and live as long as the client.
    std::vector<std::atomic<Slot*>> m_slots;
};

}
