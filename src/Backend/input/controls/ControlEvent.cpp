#include "Backend/input/controls/ControlEvent.h"

#include "Backend/core/xml/Text.h"
#include "Backend/core/xml/XmlElement.h"
#include "Backend/core/xml/XmlWriting.h"
#include "Backend/midi/MirelMidiMessage.h"

namespace Backend::Controls {

namespace {

constexpr int NOT_SET = -1;

char readByte(const XmlElement& element, const char* name) {
    return Text::lowByte(element.getIntAttribute(name, NOT_SET));
}

}

ControlEvent::ControlEvent(const XmlElement& element)
    : midiMessage(element.getAttribute("midiEvent")),
      output(readByte(element, "output")),
      channel(readByte(element, "channel")),
      zone(readByte(element, "zone")) {}

void ControlEvent::writeXml(std::ostream& stream, int indent) const {
    stream << getIndentation(indent) << getStartTagBegin(TAG) << getAttributeText("midiEvent", midiMessage)
           << getAttributeText("output", output) << getAttributeText("channel", channel)
           << getAttributeText("zone", zone) << getEmptyTagEnd() << '\n';
}

bool ControlEvent::matches(const MidiEngine::MirelMidiMessage& message) const {
    const char messageChannel =
        message.isDefaultChannel() ? MidiEngine::MirelMidiMessage::DEFAULT_CHANNEL : message.getChannel();
    return midiMessage.getStatus() == message.getStatus() &&
           (!message.isControllerChange() || midiMessage.getD1() == message.getD1()) && output == message.getOutput() &&
           channel == messageChannel && zone == message.getZone();
}

}
