#include "Backend/midi/MidiMessage.h"

#include "Backend/core/Text.h"
#include "Backend/midi/MidiNames.h"

#include <algorithm>
#include <array>

namespace Backend::MidiEngine {

MidiMessage::MidiMessage(MessageType status, char d1, char d2, char channel)
    : m_status(fixStatus(status)), m_d1(d1), m_d2(d2), m_channel(std::clamp<char>(channel, 0, 15)) {}

MidiMessage::MidiMessage(const std::string& text) {
    const auto comma = text.find(',');
    const EventName* row = findEventName(std::string_view(text).substr(0, comma));
    if (row)
        m_status = row->status;
    if (comma != std::string::npos)
        m_d1 = Text::lowByte(Text::readInteger(std::string_view(text).substr(comma + 1), 0));
}

MidiMessage::MidiMessage(Note note) {
    if (note.isNote())
        *this = note;
}

MidiMessage& MidiMessage::operator=(Note note) {
    m_status = NoteOn;
    m_d1 = static_cast<char>(note.getNumber());
    m_d2 = 0;
    return *this;
}

bool MidiMessage::isValid() const {
    return findEventName(m_status) != nullptr;
}

int MidiMessage::getMessageSize() const {
    const EventName* row = findEventName(m_status);
    return row ? row->dataBytes : 0;
}

std::uint32_t MidiMessage::getMidiOutShortMsg() const {
    const auto channel = static_cast<unsigned char>(m_channel);
    const std::uint32_t merged = channel < 16 && !isSongPosition() ? channel : 0;
    return std::uint32_t{static_cast<unsigned char>(m_d2)} << 16 | std::uint32_t{static_cast<unsigned char>(m_d1)} << 8 |
           m_status | merged;
}

int MidiMessage::writeBytes(std::ofstream& stream) const {
    const std::array<char, 3> bytes = {static_cast<char>(getStatusWithChannel()), m_d1, m_d2};
    const int count = 1 + getMessageSize();
    stream.write(bytes.data(), count);
    return count;
}

std::string MidiMessage::getEventNameStatic(MessageType status) {
    const EventName* row = findEventName(status);
    return row ? row->name : "Unknown";
}

std::string MidiMessage::getEventNameWithCcAndNoteDetail() const {
    if (isNote())
        return "Note " + std::to_string(m_d1) + " (" + getNoteName(m_d1, true) + ")";
    if (isControllerChange())
        return "Control Change " + std::to_string(m_d1) + ": " + getControllerName(m_d1);
    return getEventName();
}

std::string MidiMessage::getControllerName(char number) {
    return controllerName(number);
}

std::string MidiMessage::toXmlString() const {
    if (isNote() || isControllerChange())
        return getEventName() + "," + std::to_string(m_d1);
    return getEventName();
}

bool MidiMessage::operator==(const MidiMessage& other) const {
    return this == &other || (m_status == other.m_status && m_d1 == other.m_d1 && m_d2 == other.m_d2 &&
                              m_channel == other.m_channel);
}

bool MidiMessage::operator<(const MidiMessage& other) const {
    return m_status < other.m_status || (m_status == other.m_status && m_d1 < other.m_d1);
}

bool MidiMessage::operator>=(const MidiMessage& other) const {
    return m_status > other.m_status || (m_status == other.m_status && m_d1 >= other.m_d1);
}

bool MidiMessage::operator<=(const MidiMessage& other) const {
    return *this == other || *this < other;
}

}
