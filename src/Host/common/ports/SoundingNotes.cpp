#include "Host/common/ports/SoundingNotes.h"

#include <limits>

namespace Host {

namespace {

constexpr std::uint32_t CONTROLLER = 0xb0;
constexpr std::uint32_t SUSTAIN_PEDAL = 64;
constexpr std::uint8_t PEDAL_IS_DOWN = 64;
constexpr std::uint32_t RELEASE_VELOCITY = 64;

std::uint32_t noteOff(std::size_t channel, std::size_t note) {
    return RELEASE_VELOCITY << 16 | static_cast<std::uint32_t>(note << 8 | 0x80 | channel);
}

}

void SoundingNotes::sent(const OutputEvent& event) {
    std::uint8_t& count = m_notes[event.channel()][event.d1() & 0x7f];
    if (event.isNoteOn()) {
        if (count < std::numeric_limits<std::uint8_t>::max())
            ++count;
    } else if (event.isNoteOff()) {
        if (count > 0)
            --count;
    } else if (event.kind() == CONTROLLER && event.d1() == SUSTAIN_PEDAL) {
        m_pedalIsDown[event.channel()] = event.d2() >= PEDAL_IS_DOWN;
    }
}

void SoundingNotes::end(std::int64_t microseconds, const std::function<void(const OutputEvent&)>& ending) {
    for (std::size_t channel = 0; channel < CHANNELS; ++channel) {
        for (std::size_t note = 0; note < NOTES; ++note)
            for (; m_notes[channel][note] > 0; --m_notes[channel][note])
                ending({noteOff(channel, note), microseconds});
        if (m_pedalIsDown[channel])
            ending({static_cast<std::uint32_t>(SUSTAIN_PEDAL << 8 | CONTROLLER | channel), microseconds});
        m_pedalIsDown[channel] = false;
    }
}

}
