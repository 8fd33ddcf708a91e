#include "Backend/midi/sequences/SequenceSetting.h"

#include "Backend/core/xml/Text.h"
#include "Backend/core/xml/XmlElement.h"
#include "Backend/core/xml/XmlWriting.h"
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

SequenceSetting::SequenceSetting(const XmlElement& element, const SequencePresetManager& presets)
    : m_preset(Text::trim(element.getAttribute("preset"))),
      m_useNote(element.getBoolAttribute("useNote", true)),
      m_useVelocity(element.getBoolAttribute("useVelocity", true)),
      m_useLength(element.getBoolAttribute("useLength", true)) {
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
    stream << getIndentation(indent) << getStartTagBegin(TAG) << getAttributeText("preset", m_preset)
           << getAttributeText("useNote", m_useNote) << getAttributeText("useVelocity", m_useVelocity)
           << getAttributeText("useLength", m_useLength) << getStartTagEnd() << '\n';
    if (m_preset.empty() && m_sequence.hasNodes())
        stream << getIndentation(indent + 1) << getStartTag(Sequence::TAG) << escape(m_sequence.toString())
               << getEndTag(Sequence::TAG) << '\n';
    stream << getIndentation(indent) << getEndTag(TAG) << '\n';
}

}
