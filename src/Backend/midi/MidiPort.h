#pragma once

#include <string>

namespace Backend::MidiEngine {

// A MIDI port as the host presents it. Its index is its place in the host's list.
struct MidiPort {
    // Both belong to the host; the desk passes them along unread.
    char hostData1 = 0;
    char hostData2 = 0;

    std::string name;
    bool enabled = true;
    bool available = true;
};

struct MidiInputPort : MidiPort {};
struct MidiOutputPort : MidiPort {};

}
