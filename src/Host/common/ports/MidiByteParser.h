#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace Host {

// One message of a MIDI stream other than a sysex.
struct MidiBytes {
    std::uint8_t status = 0;  // With the channel.
    std::uint8_t d1 = 0;      // 0 if the message has none.
    std::uint8_t d2 = 0;

    bool operator==(const MidiBytes&) const = default;
};

// Cuts a stream of MIDI bytes into messages, wherever the pieces in which it comes begin and end: with running status,
// with real-time bytes inside of other messages, and with what makes no sense passed over. A sysex is skipped.
class MidiByteParser {
public:
    // [one thread at a time] Takes the next byte. True if it ends a message, which then stands in message.
    bool feed(std::uint8_t byte, MidiBytes& message);

    // [any] How many of the bytes of a message packed into a word (the first one lowest) belong to it, 1 to 3. A word
    // that begins with data is one in running status.
    std::size_t lengthOfPacked(std::uint32_t word) const;

    // [any] How many data bytes follow a status: 0 to 2.
    static std::size_t dataBytesOf(std::uint8_t status);

private:
    bool feedStatus(std::uint8_t byte, MidiBytes& message);

    std::uint8_t m_status = 0;  // Of the message under way or of the run; 0 for none: data is passed over.
    std::array<std::uint8_t, 2> m_data{};
    std::size_t m_count = 0;
};

}
