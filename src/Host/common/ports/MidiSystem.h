// The MIDI ports of the computer, as the desk sees them on every system.
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

// Takes what comes in: bytes as the system delivers them, and when they came (monotonicMicroseconds()). It is called on
// a thread of the system's, which may be one that must not wait long.
using MidiReceiver = std::function<void(const std::uint8_t* bytes, std::size_t count, std::int64_t microseconds)>;

// A port that is open. It is closed at the end of the object, and delivers nothing afterwards.
class OpenMidiPort {
public:
    virtual ~OpenMidiPort() = default;

    // [one thread at a time] Sends one whole message, at once; microseconds is when it was played, for who keeps it.
    // False if that failed, and always for an input. May hang as long as the system does.
    virtual bool send(const std::uint8_t* bytes, std::size_t count, std::int64_t microseconds) = 0;

    // [one thread at a time] Waits until what was sent no longer needs this program, but not for ever.
    virtual void flush() {}
};

// Its operations may hang as long as the system does, so nobody calls them on a thread that others wait for.
class MidiSystem {
public:
    virtual ~MidiSystem() = default;

    // [any] The name of what stands behind it, for display; "none" while there is nothing.
    virtual std::string name() = 0;

    // [any] What is there now. The desk's own ports are left out.
    virtual MidiPortIds list() = 0;

    // [any] Null if there is no such port or it can't be opened.
    [[nodiscard]] virtual std::unique_ptr<OpenMidiPort> openInput(const MidiPortId& id, MidiReceiver receiver) = 0;
    [[nodiscard]] virtual std::unique_ptr<OpenMidiPort> openOutput(const MidiPortId& id) = 0;

    // [any] Whether the system has the following ones now.
    virtual bool hasVirtualPorts() = 0;

    // [any] A port of the desk's own, for other programs to connect to. Null where the system has no such thing.
    [[nodiscard]] virtual std::unique_ptr<OpenMidiPort> openVirtualInput(const std::string& name,
                                                                         MidiReceiver receiver) = 0;
    [[nodiscard]] virtual std::unique_ptr<OpenMidiPort> openVirtualOutput(const std::string& name) = 0;

    // [any] Says that from now on ports are only closed, all of them, so that they may go together in the end.
    virtual void beginClose() {}
};

// [any] The computer's own. The name is the one under which other programs see the desk. There is always an object, on
// a computer without MIDI with nothing in it.
std::shared_ptr<MidiSystem> createMidiSystem(const std::string& clientName);

// [any] Names in the system's order, each with the number of its copy.
std::vector<MidiPortId> numberCopies(const std::vector<std::string>& names);

}
