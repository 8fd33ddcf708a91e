#include "Backend/midi/sequences/SequenceSetting.h"

#include "Backend/core/xml/ElementWriter.h"
#include "Backend/core/xml/Text.h"
#include "Backend/midi/sequences/SequencePresetManager.h"

namespace Backend::SequenceManagement {

namespace {

constexpr const char* NO_SEQUENCE = "Off";

}

SequenceSetting::SequenceSetting(const std::string& presetName, const SequencePresetManager& presets)
    : m_useLength(true) {
    const std::string name(Text::trim(presetName));
    if (name.empty() || name == NO_SEQUENCE)
        return;
    m_preset = name;
    m_sequence = presets.load(name);
}

SequenceSetting::SequenceSetting(const XmlElement& element, const SequencePresetManager& presets) {
    readAttributes(element, *this);
    m_preset = std::string(Text::trim(m_preset));
    if (!m_preset.empty()) {
        m_sequence = presets.load(m_preset);
        return;
    }
    for (auto child = element.begin(); child != element.end(); child.next()) {
        if (child.getName() == Sequence::TAG) {
            m_sequence = Sequence(child.getText());
            return;
        }
    }
}

void SequenceSetting::writeXml(std::ostream& stream, int indent) const {
    const ElementWriter setting(stream, indent, TAG, *this);
    if (m_preset.empty() && m_sequence.hasNodes())
        setting.writeText(Sequence::TAG, m_sequence.toString());
}

}
