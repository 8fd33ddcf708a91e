#pragma once

#include "Backend/core/xml/Attribute.h"
#include "Backend/midi/sequences/Sequence.h"

#include <ostream>
#include <string>

namespace Backend::SequenceManagement {

class SequencePresetManager;

// The sequence of a layer: a preset by name or the layer's own, and which of its offsets count.
class SequenceSetting {
public:
    static constexpr const char* TAG = "SequenceSetting";

    static auto attributes() {
        return std::tuple{
            Attribute{"preset", &SequenceSetting::m_preset},
            Attribute{"useNote", &SequenceSetting::m_useNote, true},
            Attribute{"useVelocity", &SequenceSetting::m_useVelocity, true},
            Attribute{"useLength", &SequenceSetting::m_useLength, true},
        };
    }

    SequenceSetting() = default;

    // A preset by name, read from its file. An empty name or "Off" gives no sequence; an unreadable file leaves the
    // sequence empty.
    SequenceSetting(const std::string& presetName, const SequencePresetManager& presets);

    // Reads its element. A preset's name overrides a sequence in the element.
    SequenceSetting(const XmlElement& element, const SequencePresetManager& presets);

    // Writes the element on its own lines, indented by this many tabs.
    void writeXml(std::ostream& stream, int indent) const;

    const std::string& getPreset() const { return m_preset; }
    void setPreset(const std::string& name) { m_preset = name; }
    Sequence& getSequence() { return m_sequence; }
    const Sequence& getSequence() const { return m_sequence; }
    void setSequence(const Sequence& sequence) { m_sequence = sequence; }
    bool getUseNote() const { return m_useNote; }
    void setUseNote(bool useNote) { m_useNote = useNote; }
    bool getUseVelocity() const { return m_useVelocity; }
    void setUseVelocity(bool useVelocity) { m_useVelocity = useVelocity; }

    // Saved and restored; playing ignores it.
    bool getUseLength() const { return m_useLength; }
    void setUseLength(bool useLength) { m_useLength = useLength; }

private:
    std::string m_preset;
    Sequence m_sequence;
    bool m_useNote = true;
    bool m_useVelocity = true;
    bool m_useLength = false;
};

}
