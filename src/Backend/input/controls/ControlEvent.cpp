#include "Backend/input/controls/ControlEvent.h"

#include "Backend/core/xml/ElementWriter.h"
#include "Backend/midi/MirelMidiMessage.h"

namespace Backend::Controls {

ControlEvent::ControlEvent(const XmlElement& element) {
    readAttributes(element, *this);
}

void ControlEvent::writeXml(std::ostream& stream, int indent) const {
    writeEmptyElement(stream, indent, TAG, *this);
}

bool ControlEvent::matches(const MidiEngine::MirelMidiMessage& message) const {
    const char messageChannel =
        message.isDefaultChannel() ? MidiEngine::MirelMidiMessage::DEFAULT_CHANNEL : message.getChannel();
    return midiMessage.getStatus() == message.getStatus() &&
           (!message.isControllerChange() || midiMessage.getD1() == message.getD1()) && output == message.getOutput() &&
           channel == messageChannel && zone == message.getZone();
}

}
