#pragma once

#include "Backend/midi/MidiMessage.h"

#include <ostream>

namespace Backend {
class XmlElement;
}

namespace Backend::MidiEngine {
class MirelMidiMessage;
}

namespace Backend::Controls {

// An event that a control sends with its value in it.
struct ControlEvent {
    static constexpr const char* TAG = "Function";

    ControlEvent() = default;
    explicit ControlEvent(const MidiEngine::MidiMessage& message) : midiMessage(message) {}

    // From its element.
    explicit ControlEvent(const XmlElement& element);

    // The element on a line of its own, indent tabs deep.
    void writeXml(std::ostream& stream, int indent) const;

    bool hasSameRouting(const ControlEvent& other) const {
        return zone == other.zone && output == other.output && channel == other.channel;
    }

    // Whether an event that passed the engine is one of these, whatever its value.
    bool matches(const MidiEngine::MirelMidiMessage& message) const;

    MidiEngine::MidiMessage midiMessage;  // Of a controller its number too.
    char output = -1;                     // -1: the default output.
    char channel = -1;                    // -1: the default channel.
    char zone = -1;                       // -1: none.
};

}
