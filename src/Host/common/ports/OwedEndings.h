#pragma once

#include "Host/common/ports/OutputEvent.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>

namespace Host {

// The endings that must still be sent to a port so that nothing keeps sounding: note-offs, pedal releases,
// all-sound-off. As a set of every possible ending it can't run full. One thread adds, another one takes. All of it is
// [rt].
class OwedEndings {
public:
    // [any] Whether an event ends something: a note-off, the release of a pedal (controllers 64 to 69), a channel mode
    // message (controllers 120 to 127), a stop or a system reset.
    static bool isEnding(const OutputEvent& event) { return indexOf(event) < COUNT; }

    // [producer] Adds one; other events are ignored.
    void add(const OutputEvent& event);

    // [consumer] Takes one out as the event to be sent, with the time of the last one added. False if there is none.
    [[nodiscard]] bool take(OutputEvent& event);

private:
    static constexpr std::size_t CHANNELS = 16;
    static constexpr std::size_t NOTES = 128;
    static constexpr std::size_t FIRST_PEDAL = 64;
    static constexpr std::size_t PEDALS = 6;
    static constexpr std::size_t FIRST_MODE = 120;
    static constexpr std::size_t MODES = 8;
    static constexpr std::size_t A_CHANNEL = NOTES + PEDALS + MODES;
    static constexpr std::size_t STOP = CHANNELS * A_CHANNEL;
    static constexpr std::size_t RESET = STOP + 1;
    static constexpr std::size_t COUNT = RESET + 1;
    static constexpr std::size_t BITS = 64;
    static constexpr std::size_t WORDS = (COUNT + BITS - 1) / BITS;

    static std::size_t indexOf(const OutputEvent& event);
    static std::uint32_t bytesOf(std::size_t index);

    std::array<std::atomic<std::uint64_t>, WORDS> m_owed{};
    std::atomic<std::int64_t> m_microseconds{0};
};

}
