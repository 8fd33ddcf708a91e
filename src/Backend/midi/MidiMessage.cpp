#include "Backend/midi/MidiMessage.h"

#include "Backend/core/xml/Text.h"
#include "Backend/midi/MidiNames.h"

#include <algorithm>
#include <array>

namespace Backend::MidiEngine {

MidiMessage::MidiMessage(MessageType status, char d1, char d2, char channel)
    : m_bytes{fixStatus(status), d1, d2, std::clamp<char>(channel, 0, 15)} {}

MidiMessage::MidiMessage(const std::string& text) {
    const auto comma = text.find(',');
    const EventName* row = findEventName(std::string_view(text).substr(0, comma));
    if (row)
        m_bytes.status = row->status;
    if (comma != std::string::npos)
        m_bytes.d1 = Text::lowByte(Text::readInteger(std::string_view(text).substr(comma + 1), 0));
}

MidiMessage::MidiMessage(const Note& note) {
    if (note.isNote())
        *this = note;
}

MidiMessage& MidiMessage::operator=(const Note& note) {
    m_bytes.status = NoteOn;
    m_bytes.d1 = static_cast<char>(note.getNumber());
    m_bytes.d2 = 0;
    return *this;
}

bool MidiMessage::isValid() const {
    return findEventName(m_bytes.status) != nullptr;
}

int MidiMessage::getMessageSize() const {
    const EventName* row = findEventName(m_bytes.status);
    return row ? row->dataBytes : 0;
}

std::uint32_t MidiMessage::getMidiOutShortMsg() const {
    const auto channel = static_cast<unsigned char>(m_bytes.channel);
    const std::uint32_t merged = channel < 16 && !isSongPosition() ? channel : 0;
    return std::uint32_t{static_cast<unsigned char>(m_bytes.d2)} << 16 |
           std::uint32_t{static_cast<unsigned char>(m_bytes.d1)} << 8 | m_bytes.status | merged;
}

int MidiMessage::writeBytes(std::ofstream& stream) const {
    const std::array<char, 3> bytes = {static_cast<char>(getStatusWithChannel()), m_bytes.d1, m_bytes.d2};
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
        return "Note " + std::to_string(m_bytes.d1) + " (" + getNoteName(m_bytes.d1, true) + ")";
    if (isControllerChange())
        return "Control Change " + std::to_string(m_bytes.d1) + ": " + getControllerName(m_bytes.d1);
    return getEventName();
}

std::string MidiMessage::getControllerName(char number) {
    return controllerName(number);
}

std::string MidiMessage::toXmlString() const {
    if (isNote() || isControllerChange())
        return getEventName() + "," + std::to_string(m_bytes.d1);
    return getEventName();
}

bool MidiMessage::operator==(const MidiMessage& other) const {
    return this == &other || (m_bytes.status == other.m_bytes.status && m_bytes.d1 == other.m_bytes.d1 &&
                              m_bytes.d2 == other.m_bytes.d2 && m_bytes.channel == other.m_bytes.channel);
}

bool MidiMessage::operator<(const MidiMessage& other) const {
    return m_bytes.status < other.m_bytes.status ||
           (m_bytes.status == other.m_bytes.status && m_bytes.d1 < other.m_bytes.d1);
}

bool MidiMessage::operator>=(const MidiMessage& other) const {
    return m_bytes.status > other.m_bytes.status ||
           (m_bytes.status == other.m_bytes.status && m_bytes.d1 >= other.m_bytes.d1);
}

bool MidiMessage::operator<=(const MidiMessage& other) const {
    return *this == other || *this < other;
}

}
