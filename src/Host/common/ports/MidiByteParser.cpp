#include "Host/common/ports/MidiByteParser.h"

namespace Host {

namespace {

constexpr std::uint8_t FIRST_STATUS = 0x80;
constexpr std::uint8_t FIRST_SYSTEM = 0xf0;
constexpr std::uint8_t SYSEX = 0xf0;
constexpr std::uint8_t END_OF_SYSEX = 0xf7;
constexpr std::uint8_t FIRST_REAL_TIME = 0xf8;

}

std::size_t MidiByteParser::dataBytesOf(std::uint8_t status) {
    if (status < FIRST_SYSTEM) {
        const std::uint8_t kind = status & 0xf0;
        return kind == 0xc0 || kind == 0xd0 ? 1 : 2;
    }
    switch (status) {
        case 0xf1:
        case 0xf3:
        case 0xf5: return 1;
        case 0xf2: return 2;
        default: return 0;
    }
}

bool MidiByteParser::feed(std::uint8_t byte, MidiBytes& message) {
    if (byte >= FIRST_REAL_TIME) {
        // Real-time bytes may come anywhere and interrupt nothing.
        message = {byte, 0, 0};
        return true;
    }
    if (byte >= FIRST_STATUS)
        return feedStatus(byte, message);
    if (m_status == 0)
        return false;
    m_data[m_count++] = byte;
    const std::size_t needed = dataBytesOf(m_status);
    if (m_count < needed)
        return false;
    message = {m_status, m_data[0], needed == 2 ? m_data[1] : std::uint8_t{0}};
    m_count = 0;
    if (m_status >= FIRST_SYSTEM)
        m_status = 0;  // These don't start running status.
    return true;
}

bool MidiByteParser::feedStatus(std::uint8_t byte, MidiBytes& message) {
    m_count = 0;
    m_status = byte == SYSEX || byte == END_OF_SYSEX ? std::uint8_t{0} : byte;
    if (m_status == 0 || dataBytesOf(byte) > 0)
        return false;
    m_status = 0;
    message = {byte, 0, 0};
    return true;
}

std::size_t MidiByteParser::lengthOfPacked(std::uint32_t word) const {
    const auto first = static_cast<std::uint8_t>(word & 0xff);
    if (first >= FIRST_STATUS)
        return 1 + dataBytesOf(first);
    return m_status == 0 ? 1 : dataBytesOf(m_status);
}

}
