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

// The key presses of the terminal that the program runs in. At the end of the object the terminal is as it was.
class TerminalKeys {
public:
    // [main] Null if standard input is no terminal.
    static std::unique_ptr<TerminalKeys> open();

    virtual ~TerminalKeys() = default;

    // [main] What happened to keys, after waiting at most this long for something. A key that goes down also goes up,
    // if the terminal does not tell when then after a short while.
    virtual std::vector<KeyEvent> read(std::chrono::milliseconds limit) = 0;

    // [main] Whether the user has pressed what ends programs, where the terminal gives it as a key.
    virtual bool isInterrupted() const = 0;

    // [main] Makes the terminal as it was, for a pause of the program, and releases all keys that are down. Nothing
    // where programs are never paused.
    virtual std::vector<KeyEvent> giveBack() { return {}; }

    // [main] Takes the terminal again after that.
    virtual void takeAgain() {}
};

}
