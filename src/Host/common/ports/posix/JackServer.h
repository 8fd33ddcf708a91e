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

// The desk's place at a running JACK server, with all of its ports in one client.
//
// RtMidi's ports for JACK are not used: they wait without end for a server that has stopped, can't be closed once it
// has gone, and take a client for each port.
class JackServer : public std::enable_shared_from_this<JackServer> {
public:
    static constexpr std::chrono::milliseconds CONNECT_LIMIT{3000};  // For a busy computer.

    // [any] A place under this name, or with a number behind it if another desk has that. Null if no server runs; none
    // is started. Null as well if the server hasn't answered within the limit; it is left to itself then, and until it
    // answers or goes there is no place for anybody in this process. As long as a place of this process at a server
    // that has gone is in use there is no new one. At the end of its last user the place is given up; a server that
    // hangs is not waited for.
    static std::shared_ptr<JackServer> connect(const std::string& clientName,
                                               std::chrono::milliseconds limit = CONNECT_LIMIT);

    JackServer(const JackServer&) = delete;
    JackServer& operator=(const JackServer&) = delete;

    // [any] False from the moment the server has gone, or has thrown the desk out.
    bool isAlive() const { return m_isAlive; }

    // [any] The name that the desk has there, which no other one has.
    const std::string& name() const { return m_name; }

    // [any] The ports of all other programs. Those with which another desk of the same client name reaches a port are
    // left out: two desks would take them for new ports for ever. One that went and came back since the desk opened it
    // is left out until the desk has closed it: it is another one of the same name, to which nothing is connected.
    MidiPortIds list();

    // [any] A port of the desk that is connected to this one of another program. Null if there is no such other port.
    std::unique_ptr<OpenMidiPort> openInput(const std::string& from, MidiReceiver receiver);
    std::unique_ptr<OpenMidiPort> openOutput(const std::string& to);

    // [any] A port of the desk for other programs to connect to. Null if there can't be one.
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
    const std::string m_clientName;  // That of all desks, without a number.
    const std::string m_name;
    std::atomic<bool> m_isAlive{true};
    std::atomic<std::uint32_t> m_cycles{0};      // How often the server has had the ports processed; wraps.
    std::atomic<std::uint32_t> m_lastChange{0};  // The cycle in which somebody changed something at the server.
    std::atomic<bool> m_isLeaving{false};
    std::mutex m_mutex;       // Of who opens ports; not of the server's thread.
    std::mutex m_portsMutex;  // Of the library's list of the desk's ports.
    std::mutex m_newcomersMutex;
    std::vector<std::string> m_newcomers;  // Ports that the server has registered since the last look.
    // Slots are used again and live as long as the client.
    std::vector<std::atomic<Slot*>> m_slots;
};

}
