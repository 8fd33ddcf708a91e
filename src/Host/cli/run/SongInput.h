#pragma once

#include "Host/common/midifile/MidiFile.h"

#include <chrono>
#include <cstddef>
#include <functional>
#include <vector>

namespace Host::Cli {

// A MIDI file that is played into the desk in its own time, as if live.
class SongInput {
public:
    using Receiver = std::function<void(const MidiFileEvent& event)>;

    explicit SongInput(const MidiFile& file);

    // [main] Passes on all events up to this time from the song's start that it has not passed on yet.
    void playUntil(std::chrono::microseconds time, const Receiver& receive);

    // The time of the next event; nothing after the last.
    bool isAtEnd() const { return m_next == m_events.size(); }
    std::chrono::microseconds getNextTime() const { return m_events[m_next].time; }

private:
    struct TimedEvent {
        std::chrono::microseconds time;
        MidiFileEvent event;
    };

    std::vector<TimedEvent> m_events;
    std::size_t m_next = 0;
};

}
