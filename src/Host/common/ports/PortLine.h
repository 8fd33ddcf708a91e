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

// The desk's end of one port of the system, with a thread that opens, feeds and closes it. Whatever hangs in a driver
// hangs on that thread alone; no other operation waits for it.
//
// The line remembers what sounds on its port. Whenever a working port is closed, all of that is ended first.
class PortLine {
public:
    // Opens the port; null on failure. Called on the line's thread; owns everything it touches.
    using Opener = std::function<std::unique_ptr<OpenMidiPort>()>;

    // The name is the thread's.
    explicit PortLine(std::string name);

    // Does what finish does, and abandons a thread that hangs.
    ~PortLine();
    PortLine(const PortLine&) = delete;
    PortLine& operator=(const PortLine&) = delete;

    // [one thread at a time] Asks for the port to be opened, after closing one that is open. isOpen shows when it is
    // done. Does nothing after finish.
    void open(Opener opener);

    // [one thread at a time] Asks for the port to be closed; of what is still queued, only the endings are sent.
    void close();

    // [any, rt] Asks for all sounding notes to be ended after what is queued. The line is idle when that no longer
    // needs this program.
    void endNotes();

    // [one thread at a time, rt] Queues an event, its bytes in one word, for the port. False if the port is not open or
    // the event was dropped (see OutputQueue).
    bool play(std::uint32_t bytes, std::int64_t microseconds);

    // [any, rt] Whether the port is open and takes events.
    bool isOpen() const;

    // [any] Whether open() was called more recently than close().
    bool isWanted() const;

    // [any] Whether the port could not be opened, or failed and was closed, since the last open().
    bool hasFailed() const;

    // [any] Whether the line has done everything asked of it and sent everything it was given. For tests.
    bool isIdle() const;

    // [any] How many events were dropped so far because the port was too slow.
    std::uint64_t dropped() const;

    // [one thread at a time] Closes for good; nothing is opened after this.
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
