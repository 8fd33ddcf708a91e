#pragma once

#include "Host/common/ports/AbandonableThread.h"
#include "Host/common/ports/MidiSystem.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace Host {

// The desk's end of one port of the system, with a thread that opens, feeds and closes it. All that can hang in a
// driver hangs there alone: no other operation waits for it.
//
// The line remembers what sounds on its port. Whenever the port is closed while it works, all of that ends first.
class PortLine {
public:
    // Opens the port; null if that fails. It is called on the line's thread and owns all that it touches.
    using Opener = std::function<std::unique_ptr<OpenMidiPort>()>;

    // The name is that of the thread.
    explicit PortLine(std::string name);

    // As finish; a thread that hangs is left to itself.
    ~PortLine();
    PortLine(const PortLine&) = delete;
    PortLine& operator=(const PortLine&) = delete;

    // [one thread at a time] Asks for the port to be opened; one that is open is closed before. isOpen tells when it is
    // done. Nothing happens after finish.
    void open(Opener opener);

    // [one thread at a time] Asks for the port to be closed: of what is still queued only the endings are sent.
    void close();

    // [any, rt] Asks for the end of all that sounds, behind what is queued. The line is idle when that no longer needs
    // this program.
    void endNotes();

    // [one thread at a time, rt] Queues an event of this many bytes' worth for the port. False if the port is not open
    // or the event was dropped (OutputQueue tells which are).
    bool play(std::uint32_t bytes, std::int64_t microseconds);

    // [any, rt] Whether the port is open and takes events.
    bool isOpen() const;

    // [any] Whether open() was called more recently than close().
    bool isWanted() const;

    // [any] Whether the port could not be opened, or failed and was closed, since the last open().
    bool hasFailed() const;

    // [any] Whether the line has done all that it was asked for, and sent all that it was given. For tests.
    bool isIdle() const;

    // [any] Events dropped since the beginning, as the port was too slow.
    std::uint64_t dropped() const;

    // [one thread at a time] Closes for good; nothing is opened any more.
    void finish();

    // [any] After finish: waits until the port is closed, but not beyond the deadline. False if it hangs.
    bool waitUntilFinished(std::chrono::steady_clock::time_point deadline);

private:
    struct State;

    std::shared_ptr<State> m_state;
    std::string m_name;
    bool m_isFinished = false;
    std::optional<AbandonableThread> m_thread;  // From the first open() on.
};

}
