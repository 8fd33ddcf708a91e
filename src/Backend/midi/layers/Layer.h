#pragma once

#include "Backend/core/xml/Attribute.h"
#include "Backend/functions/values/NoteToggle.h"
#include "Backend/functions/values/RelativeFixedValue.h"
#include "Backend/midi/Fraction.h"
#include "Backend/midi/MidiRanges.h"
#include "Backend/midi/Note.h"
#include "Backend/midi/arpeggios/Arpeggio.h"
#include "Backend/midi/sequences/SequenceSetting.h"

#include <memory>
#include <ostream>
#include <string>

namespace Backend::SequenceManagement {
class SequencePresetManager;
}

namespace Backend::Layers {

// One rule that turns an incoming event into an outgoing one. Copies are deep.
struct Layer {
    static constexpr const char* TAG = "Layer";

    Layer() = default;
    ~Layer() = default;
    Layer(const Layer& other);
    Layer& operator=(const Layer& other);
    Layer(Layer&&) = default;
    Layer& operator=(Layer&&) = default;

    static auto attributes() {
        return std::tuple{
            Attribute{"mute", &Layer::mute, false},
            Attribute{"mono", &Layer::mono, false},
            Attribute{"toggle", &Layer::toggle},
            Attribute{"useNoteStack", &Layer::useNoteStack, true},
            Attribute{"minNote", &Layer::minNote, Note(std::uint8_t{0}), MidiRanges::NOTE},
            Attribute{"maxNote", &Layer::maxNote, Note(std::uint8_t{127}), MidiRanges::NOTE},
            Attribute{"minVelocity", &Layer::minVelocity, 0, MidiRanges::DATA_BYTE},
            Attribute{"maxVelocity", &Layer::maxVelocity, 127, MidiRanges::DATA_BYTE},
            Attribute{"zone", &Layer::zone, -1, MidiRanges::ZONE},
            Attribute{"output", &Layer::output, -1, MidiRanges::OUTPUT},
            Attribute{"channel", &Layer::channel, 0, MidiRanges::CHANNEL},
            Attribute{"transpose", &Layer::transpose, &readChange},
            Attribute{"key", &Layer::key, Note(), MidiRanges::NOTE_OR_NONE},
            Attribute{"velocity", &Layer::velocity, &readChange},
            Attribute{"compress", &Layer::compress},
        };
    }

    // Reads its element. A missing or unreadable attribute takes the default below.
    Layer(const XmlElement& element, const SequenceManagement::SequencePresetManager& presets);

    // Writes the element on its own lines, indented by this many tabs.
    void writeXml(std::ostream& stream, int indent) const;

    // One line of text for lists, in which outputName stands for the layer's output.
    std::string describe(const std::string& outputName) const;

    // Whether the layer accepts events of a zone; -1 means none, for either.
    bool acceptsZone(char eventZone) const { return zone < 0 || eventZone < 0 || zone == eventZone; }

    // Whether it accepts a note of this zone.
    bool acceptsNote(char note, char noteVelocity, char eventZone) const {
        return note >= minNote.getNumber() && note <= maxNote.getNumber() && noteVelocity >= minVelocity &&
               noteVelocity <= maxVelocity && acceptsZone(eventZone);
    }

    bool hasVelocityRange() const { return minVelocity != 0 || maxVelocity != 127; }

    std::int32_t id = -1;
    bool selected = false;  // On the screen; not saved.
    bool mute = false;
    bool mono = false;
    bool solo = false;  // Not saved.
    bool useNoteStack = true;
    Note minNote = Note(std::uint8_t{0});
    Note maxNote = Note(std::uint8_t{127});
    char minVelocity = 0;
    char maxVelocity = 127;
    char zone = -1;    // -1: any.
    char output = -1;  // -1: the default output.
    char channel = 0;  // Negative: the default channel.
    RelativeFixedValue transpose;
    Note key;  // For diatonic transposition; no note: chromatic.
    RelativeFixedValue velocity;
    Fraction compress;
    NoteToggle toggle;
    std::unique_ptr<ArpeggioManagement::Arpeggio> arpeggio;
    SequenceManagement::SequenceSetting sequenceSetting;

private:
    // Text without a number leaves the note or velocity unchanged.
    static RelativeFixedValue readChange(const std::string& text);
};

}
