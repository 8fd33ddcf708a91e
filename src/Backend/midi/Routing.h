// The numbers that an event carries besides its bytes, by name: all of them are small integers, which would be hard to
// tell apart in a call without names.
#pragma once

#include <cstdint>

namespace Backend::MidiEngine {

// Where an event goes. What is left out takes its default, as decided by layers and finally by the desk's settings.
struct Routing {
    char output = -1;   // By index.
    char channel = -1;  // 0 to 15; a negative one is the default.
    char zone = -1;     // By its id.
};

// Where an event comes from, and when it should play.
struct Arrival {
    char input = -1;        // By index; -1: not from a port.
    std::int32_t ppq = -1;  // Below 0: at once.
};

}
