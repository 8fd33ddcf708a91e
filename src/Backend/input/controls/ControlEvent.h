#pragma once

#include "Backend/core/xml/Attribute.h"
#include "Backend/midi/MidiMessage.h"
#include "Backend/midi/MidiRanges.h"

#include <ostream>

namespace Backend::MidiEngine {
class MirelMidiMessage;
}

namespace Backend::Controls {

// An event that a control sends, with its value filled in.
struct ControlEvent {
    static constexpr const char* TAG = "Function";

    static auto attributes() {
        return std::tuple{
            Attribute{"midiEvent", &ControlEvent::midiMessage},
            Attribute{"output", &ControlEvent::output, -1, MidiRanges::OUTPUT},
            Attribute{"channel", &ControlEvent::channel, -1, MidiRanges::CHANNEL},
            Attribute{"zone", &ControlEvent::zone, -1, MidiRanges::ZONE},
        };
    }

    ControlEvent() = default;
    explicit ControlEvent(const MidiEngine::MidiMessage& message) : midiMessage(message) {}

    // Reads its element.
    explicit ControlEvent(const XmlElement& element);

    // Writes the element on a line of its own, indented by this many tabs.
    void writeXml(std::ostream& stream, int indent) const;

    bool hasSameRouting(const ControlEvent& other) const {
        return zone == other.zone && output == other.output && channel == other.channel;
    }

    // Whether an event that passed the engine is this one, whatever its value.
    bool matches(const MidiEngine::MirelMidiMessage& message) const;

    MidiEngine::MidiMessage midiMessage;  // For a controller, including its number.
    char output = -1;                     // -1: the default output.
    char channel = -1;                    // -1: the default channel.
    char zone = -1;                       // -1: none.
};

}
