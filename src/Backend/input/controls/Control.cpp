#include "Backend/input/controls/Control.h"

#include "Backend/core/xml/ElementWriter.h"
#include "Backend/core/xml/Text.h"
#include "Backend/midi/engine/MidiEngineMessageManager.h"

#include <algorithm>

namespace Backend::Controls {

using MidiEngine::MidiMessage;
using MidiEngine::MirelMidiMessage;

namespace {

void sendEvent(const ControlEvent& event, MidiEngine::MidiEngineMessageManager& engine, std::int32_t value,
               const Cell& cell) {
    constexpr int DATA_BITS = 7;
    constexpr std::int32_t DATA_MASK = 127;
    MidiMessage message = event.midiMessage;
    switch (message.getStatus()) {
        case MidiMessage::PitchBend:
            message.setD1(Text::lowByte(value & DATA_MASK));
            message.setD2(Text::lowByte((value >> DATA_BITS) & DATA_MASK));
            break;
        case MidiMessage::ControllerChange: message.setD2(Text::lowByte(value)); break;
        default: message.setD1(Text::lowByte(value)); break;
    }
    engine.postPlayMidi(
        MirelMidiMessage(message, {.output = event.output, .channel = event.channel, .zone = event.zone}, cell));
}

}

Control::Control(const XmlElement& element) {
    readAttributes(element, *this);
    for (auto child = element.begin(); child != element.end(); child.next())
        if (child.getName() == ControlEvent::TAG)
            events.emplace_back(child);
}

void Control::writeXml(std::ostream& stream, int indent) const {
    const ElementWriter control(stream, indent, TAG, *this);
    for (const ControlEvent& event : events)
        control.write(event);
}

void Control::setValue(MidiEngine::MidiEngineMessageManager& engine, std::int32_t newValue, bool send) {
    value = std::clamp(newValue, std::min(min, max), std::max(min, max));
    if (send)
        sendEvents(engine);
}

void Control::sendEvents(MidiEngine::MidiEngineMessageManager& engine) const {
    if (!type.hasValue())
        return;
    for (const ControlEvent& event : events)
        sendEvent(event, engine, value, cell);
}

bool Control::isEventValid(int index) const {
    return index >= 0 && static_cast<std::size_t>(index) < events.size() &&
           events[static_cast<std::size_t>(index)].midiMessage.isValid();
}

void Control::setEvent(int index, const MidiMessage& message) {
    if (index < 0 || static_cast<std::size_t>(index) > events.size())
        return;
    if (static_cast<std::size_t>(index) == events.size())
        events.emplace_back(message);
    else
        events[static_cast<std::size_t>(index)].midiMessage = message;
}

}
