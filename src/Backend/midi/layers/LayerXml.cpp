// How a layer is stored.
#include "Backend/core/xml/Text.h"
#include "Backend/core/xml/XmlElement.h"
#include "Backend/core/xml/XmlWriting.h"
#include "Backend/midi/arpeggios/ArpeggioFactory.h"
#include "Backend/midi/layers/Layer.h"

namespace Backend::Layers {

namespace {

Note readNote(const XmlElement& element, const char* name, const Note& defaultNote) {
    const std::string text = element.getAttribute(name);
    return text.empty() ? defaultNote : Note(text);
}

char readByte(const XmlElement& element, const char* name, int defaultValue) {
    return Text::lowByte(element.getIntAttribute(name, defaultValue));
}

// Text without a number leaves the note or velocity as it is.
RelativeFixedValue readValue(const XmlElement& element, const char* name) {
    const std::string text = element.getAttribute(name);
    return Text::readInteger(text) ? RelativeFixedValue(text) : RelativeFixedValue();
}

// The first kind that is known counts.
std::unique_ptr<ArpeggioManagement::Arpeggio> readArpeggio(const XmlElement& element) {
    using ArpeggioManagement::Arpeggio;
    for (auto child = element.begin(); child != element.end(); child.next()) {
        auto arpeggio = ArpeggioManagement::createArpeggio(child.getName());
        if (!arpeggio)
            continue;
        arpeggio->setBeat(child.getIntAttribute("beat", Arpeggio::DEFAULT_PPQ));
        arpeggio->setLength(child.getIntAttribute("length", Arpeggio::DEFAULT_PPQ));
        return arpeggio;
    }
    return nullptr;
}

}

Layer::Layer(const XmlElement& element, const SequenceManagement::SequencePresetManager& presets) : Layer() {
    mute = element.getBoolAttribute("mute", mute);
    mono = element.getBoolAttribute("mono", mono);
    toggle = NoteToggle(element.getAttribute("toggle"));
    useNoteStack = element.getBoolAttribute("useNoteStack", useNoteStack);
    minNote = readNote(element, "minNote", minNote);
    maxNote = readNote(element, "maxNote", maxNote);
    minVelocity = readByte(element, "minVelocity", minVelocity);
    maxVelocity = readByte(element, "maxVelocity", maxVelocity);
    zone = readByte(element, "zone", zone);
    output = readByte(element, "output", output);
    channel = readByte(element, "channel", channel);
    transpose = readValue(element, "transpose");
    key = Note(element.getAttribute("key"));
    velocity = readValue(element, "velocity");
    compress = Fraction(element.getAttribute("compress"));
    for (auto child = element.begin(); child != element.end(); child.next()) {
        if (child.getName() == ArpeggioManagement::Arpeggio::TAG)
            arpeggio = readArpeggio(child);
        else if (child.getName() == SequenceManagement::SequenceSetting::TAG)
            sequenceSetting = SequenceManagement::SequenceSetting(child, presets);
    }
}

void Layer::writeXml(std::ostream& stream, int indent) const {
    stream << getIndentation(indent) << getStartTagBegin(TAG)  //
           << getAttributeText("mute", mute)                   //
           << getAttributeText("mono", mono)                   //
           << getAttributeText("toggle", toggle)               //
           << getAttributeText("useNoteStack", useNoteStack)   //
           << getAttributeText("minNote", minNote)             //
           << getAttributeText("maxNote", maxNote)             //
           << getAttributeText("minVelocity", minVelocity)     //
           << getAttributeText("maxVelocity", maxVelocity)     //
           << getAttributeText("zone", zone)                   //
           << getAttributeText("output", output)               //
           << getAttributeText("channel", channel)             //
           << getAttributeText("transpose", transpose)         //
           << getAttributeText("key", key)                     //
           << getAttributeText("velocity", velocity)           //
           << getAttributeText("compress", compress) << getStartTagEnd() << '\n';
    if (arpeggio) {
        stream << getIndentation(indent + 1) << getStartTag(ArpeggioManagement::Arpeggio::TAG) << '\n';
        arpeggio->writeXml(stream, indent + 2);
        stream << getIndentation(indent + 1) << getEndTag(ArpeggioManagement::Arpeggio::TAG) << '\n';
    }
    if (sequenceSetting.getSequence().hasNodes())
        sequenceSetting.writeXml(stream, indent + 1);
    stream << getIndentation(indent) << getEndTag(TAG) << '\n';
}

}
