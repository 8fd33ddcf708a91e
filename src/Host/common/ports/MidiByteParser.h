#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace Host {

// One message of a MIDI stream, other than a sysex.
struct MidiBytes {
    std::uint8_t status = 0;  // Including the channel.
    std::uint8_t d1 = 0;      // 0 if the message has none.
    std::uint8_t d2 = 0;

    bool operator==(const MidiBytes&) const = default;
};

// Splits a stream of MIDI bytes into messages, however it was cut into pieces: handles running status and real-time
// bytes inside other messages, and skips sysexes and nonsense.
class MidiByteParser {
public:
    // [one thread at a time] Takes the next byte. True if it completes a message, which is then in message.
    bool feed(std::uint8_t byte, MidiBytes& message);

    // [any] How many bytes of a message packed into a word (first byte lowest) belong to it, 1 to 3. A word that begins
    // with a data byte is in running status.
    std::size_t lengthOfPacked(std::uint32_t word) const;

    // [any] How many data bytes follow a status: 0 to 2.
    static std::size_t dataBytesOf(std::uint8_t status);

private:
    bool feedStatus(std::uint8_t byte, MidiBytes& message);

    std::uint8_t m_status = 0;  // Of the message under way or of the run; 0 for none: data is skipped.
    std::array<std::uint8_t, 2> m_data{};
    std::size_t m_count = 0;
};

}
