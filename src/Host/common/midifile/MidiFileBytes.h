// Takes numbers from a stretch of a file's bytes, never past its end. The first failure sticks: from then on nothing
// remains and everything reads as 0, so a parser can check once after several reads.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Host {

class MidiFileBytes {
public:
    // [any] The stretch from begin to end (both at most file.size()). Errors mention place ("track 1"), which may be
    // empty.
    MidiFileBytes(std::string_view file, std::size_t begin, std::size_t end, std::string place);

    std::size_t position() const { return m_position; }  // From the start of the file.
    std::size_t remaining() const { return m_error ? 0 : m_end - m_position; }
    const std::optional<std::string>& error() const { return m_error; }

    // Keeps the first failure: "byte AT, PLACE: REASON".
    void fail(std::size_t at, const std::string& reason);

    // Takes over the failure of a stretch within this one.
    void adoptError(const MidiFileBytes& part);

    // 0 at the end, which is not a failure.
    std::uint8_t peek() const;

    // These fail if too few bytes remain.
    std::uint8_t byte();
    std::uint32_t bigEndian(int size);  // size 1..4
    std::string_view take(std::size_t size);

    // 0 to 0x0fffffff in one to four bytes, the last of them below 0x80; fails if the fourth isn't the last.
    std::uint32_t variableLength();

private:
    std::string_view m_file;
    std::size_t m_position;
    std::size_t m_end;
    std::string m_place;
    std::optional<std::string> m_error;
};

}
