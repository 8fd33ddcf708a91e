#pragma once

#include "Backend/input/Key.h"

#include <chrono>
#include <memory>
#include <vector>

namespace Host::Cli {

struct KeyEvent {
    Key key;
    bool isDown = false;
    bool isRepeat = false;

    bool operator==(const KeyEvent&) const = default;
};

// The key presses of the terminal that the program runs in. The destructor restores the terminal.
class TerminalKeys {
public:
    // [main] Null if standard input is not a terminal.
    static std::unique_ptr<TerminalKeys> open();

    virtual ~TerminalKeys() = default;

    // [main] The key events, after waiting at most this long for one. Every key that goes down also goes up: after a
    // short while if the terminal doesn't report when.
    virtual std::vector<KeyEvent> read(std::chrono::milliseconds limit) = 0;

    // [main] Whether the user has pressed the interrupt key, on a terminal that reports it as a key.
    virtual bool isInterrupted() const = 0;

    // [main] Restores the terminal, for a pause of the program, and releases all keys that are down. Does nothing on
    // systems where programs are never paused.
    virtual std::vector<KeyEvent> giveBack() { return {}; }

    // [main] Takes the terminal over again after giveBack.
    virtual void takeAgain() {}
};

}
