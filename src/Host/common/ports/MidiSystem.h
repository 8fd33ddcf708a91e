// The computer's MIDI ports, as the desk sees them on every system.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Host {

// A port of the system. Ports of the same name count as copies, from 1, in the system's own order.
struct MidiPortId {
    std::string name;
    int copy = 1;

    bool operator==(const MidiPortId&) const = default;
};

struct MidiPortIds {
    std::vector<MidiPortId> inputs;
    std::vector<MidiPortId> outputs;
};

// Takes what comes in: bytes as the system delivers them, and when they came (monotonicMicroseconds()). Called on one
// of the system's threads, which possibly must not wait long.
using MidiReceiver = std::function<void(const std::uint8_t* bytes, std::size_t count, std::int64_t microseconds)>;

// An open port. Destroying the object closes it; it delivers nothing afterwards.
class OpenMidiPort {
public:
    virtual ~OpenMidiPort() = default;

    // [one thread at a time] Sends one whole message at once; microseconds is when it was played, for whoever records
    // it. False on failure, and always for an input. May hang as long as the system does.
    virtual bool send(const std::uint8_t* bytes, std::size_t count, std::int64_t microseconds) = 0;

    // [one thread at a time] Waits, with a limit, until what was sent no longer needs this program.
    virtual void flush() {}
};

// Its operations may hang as long as the system does, so call them only on threads that nobody waits for.
class MidiSystem {
public:
    virtual ~MidiSystem() = default;

    // [any] The name of the underlying system, for display; "none" if there is none.
    virtual std::string name() = 0;

    // [any] The ports that exist now, without the desk's own.
    virtual MidiPortIds list() = 0;

    // [any] Null if there is no such port or it can't be opened.
    [[nodiscard]] virtual std::unique_ptr<OpenMidiPort> openInput(const MidiPortId& id, MidiReceiver receiver) = 0;
    [[nodiscard]] virtual std::unique_ptr<OpenMidiPort> openOutput(const MidiPortId& id) = 0;

    // [any] Whether the system can open virtual ports now.
    virtual bool hasVirtualPorts() = 0;

    // [any] Opens a port of the desk's own for other programs to connect to. Null if the system has no such thing.
    [[nodiscard]] virtual std::unique_ptr<OpenMidiPort> openVirtualInput(const std::string& name,
                                                                         MidiReceiver receiver) = 0;
    [[nodiscard]] virtual std::unique_ptr<OpenMidiPort> openVirtualOutput(const std::string& name) = 0;

    // [any] Announces that from now on ports are only closed, and all of them, so that they may go together at the end.
    virtual void beginClose() {}
};

// [any] The computer's own system. clientName is how other programs see the desk. Never null; without MIDI, the system
// has no ports.
std::shared_ptr<MidiSystem> createMidiSystem(const std::string& clientName);

// [any] Names in the system's order, each with the number of its copy.
std::vector<MidiPortId> numberCopies(const std::vector<std::string>& names);

}
