#include "Host/common/ports/OwedEndings.h"

#include <bit>

namespace Host {

namespace {

constexpr std::uint8_t CONTROLLER = 0xb0;
constexpr std::uint8_t STOP_SONG = 0xfc;
constexpr std::uint8_t SYSTEM_RESET = 0xff;
constexpr std::uint8_t PEDAL_IS_DOWN = 64;
constexpr std::uint32_t RELEASE_VELOCITY = 64;

}

std::size_t OwedEndings::indexOf(const OutputEvent& event) {
    if (event.status() == STOP_SONG)
        return STOP;
    if (event.status() == SYSTEM_RESET)
        return RESET;
    const std::size_t channel = event.channel() * A_CHANNEL;
    const std::size_t d1 = event.d1() & 0x7f;
    if (event.isNoteOff())
        return channel + d1;
    if (event.kind() != CONTROLLER)
        return COUNT;
    if (d1 >= FIRST_MODE)
        return channel + NOTES + PEDALS + (d1 - FIRST_MODE);
    if (d1 >= FIRST_PEDAL && d1 < FIRST_PEDAL + PEDALS && event.d2() < PEDAL_IS_DOWN)
        return channel + NOTES + (d1 - FIRST_PEDAL);
    return COUNT;
}

std::uint32_t OwedEndings::bytesOf(std::size_t index) {
    if (index == STOP)
        return STOP_SONG;
    if (index == RESET)
        return SYSTEM_RESET;
    const auto channel = static_cast<std::uint32_t>(index / A_CHANNEL);
    const auto rest = static_cast<std::uint32_t>(index % A_CHANNEL);
    if (rest < NOTES)
        return RELEASE_VELOCITY << 16 | rest << 8 | 0x80 | channel;
    const auto pedal = static_cast<std::uint32_t>(rest - NOTES);
    const auto controller =
        static_cast<std::uint32_t>(pedal < PEDALS ? FIRST_PEDAL + pedal : FIRST_MODE + pedal - PEDALS);
    return controller << 8 | CONTROLLER | channel;
}

void OwedEndings::add(const OutputEvent& event) {
    const std::size_t index = indexOf(event);
    if (index >= COUNT)
        return;
    m_microseconds.store(event.microseconds, std::memory_order_relaxed);
    m_owed[index / BITS].fetch_or(std::uint64_t{1} << index % BITS, std::memory_order_release);
}

bool OwedEndings::take(OutputEvent& event) {
    for (std::size_t word = 0; word < WORDS; ++word) {
        const std::uint64_t bits = m_owed[word].load(std::memory_order_acquire);
        if (bits == 0)
            continue;
        const auto bit = static_cast<std::size_t>(std::countr_zero(bits));
        m_owed[word].fetch_and(~(std::uint64_t{1} << bit), std::memory_order_acq_rel);
        event = {bytesOf(word * BITS + bit), m_microseconds.load(std::memory_order_relaxed)};
        return true;
    }
    return false;
}

}
