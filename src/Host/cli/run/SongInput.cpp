#include "Host/cli/run/SongInput.h"

#include "Host/common/midifile/MidiFileClock.h"

namespace Host::Cli {

SongInput::SongInput(const MidiFile& file) {
    constexpr double MICROSECONDS = 1e6;
    const MidiFileClock clock(file);
    for (const MidiFileMergedEvent& merged : mergedEvents(file))
        if (merged.event->isChannelEvent())
            m_events.push_back(
                {std::chrono::microseconds(static_cast<std::int64_t>(clock.seconds(merged.event->tick) * MICROSECONDS)),
                 *merged.event});
}

void SongInput::playUntil(std::chrono::microseconds time, const Receiver& receive) {
    for (; !isAtEnd() && getNextTime() <= time; ++m_next)
        receive(m_events[m_next].event);
}

}
