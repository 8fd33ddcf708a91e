#include "Host/common/midifile/MidiFileBytes.h"

#include <utility>

namespace Host {

MidiFileBytes::MidiFileBytes(std::string_view file, std::size_t begin, std::size_t end, std::string place)
    : m_file(file), m_position(begin), m_end(end), m_place(std::move(place)) {}

void MidiFileBytes::fail(std::size_t at, const std::string& reason) {
    if (m_error)
        return;
    m_error = "byte " + std::to_string(at) + (m_place.empty() ? "" : ", " + m_place) + ": " + reason;
}

void MidiFileBytes::adoptError(const MidiFileBytes& part) {
    if (!m_error)
        m_error = part.m_error;
}

std::uint8_t MidiFileBytes::peek() const {
    return remaining() == 0 ? std::uint8_t{0} : static_cast<std::uint8_t>(m_file[m_position]);
}

std::uint8_t MidiFileBytes::byte() {
    return static_cast<std::uint8_t>(bigEndian(1));
}

std::uint32_t MidiFileBytes::bigEndian(int size) {
    std::uint32_t number = 0;
    for (const char c : take(static_cast<std::size_t>(size)))
        number = number << 8 | static_cast<std::uint8_t>(c);
    return number;
}

std::string_view MidiFileBytes::take(std::size_t size) {
    if (size > remaining()) {
        const bool endOfFile = m_end == m_file.size();
        fail(m_position, std::to_string(size) + (size == 1 ? " byte" : " bytes") + " expected, but the " +
                             (endOfFile ? "file" : "track") + " ends at byte " + std::to_string(m_end));
        return {};
    }
    const std::string_view bytes = m_file.substr(m_position, size);
    m_position += size;
    return bytes;
}

std::uint32_t MidiFileBytes::variableLength() {
    const std::size_t begin = m_position;
    std::uint32_t number = 0;
    for (int i = 0; i < 4; ++i) {
        const std::uint8_t next = byte();
        number = number << 7 | (next & 0x7fu);
        if (next < 0x80)
            return m_error ? 0 : number;
    }
    fail(begin, "a variable-length number of more than four bytes");
    return 0;
}

}
