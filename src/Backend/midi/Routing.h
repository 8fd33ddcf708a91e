// The numbers that an event carries besides its bytes, by their names: all of them are small integers, which a call
// without names would leave to be counted.
#pragma once

#include <cstdint>

namespace Backend::MidiEngine {

// Where an event goes. What is left out is the default: layers, and at last the desk's settings, decide.
struct Routing {
    char output = -1;   // By index.
    char channel = -1;  // 0 to 15; a negative one is the default.
    char zone = -1;     // By its id.
};

// Where an event comes from, and when it is to play.
struct Arrival {
    char input = -1;        // By index; -1: not from a port.
    std::int32_t ppq = -1;  // Below 0: at once.
};

}
