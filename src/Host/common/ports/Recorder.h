#pragma once

#include "Host/common/ports/MidiSystem.h"
#include "Host/common/ports/OutputEvent.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

namespace Host {

// The output that every desk has: it keeps what was played in memory, the newest events up to a limit, and makes a
// standard MIDI file of it.
class Recorder {
public:
    static constexpr const char* NAME = "Recorder";
    // Some hours of busy playing.
    static constexpr std::size_t DEFAULT_LIMIT = 1 << 20;

    explicit Recorder(std::size_t limit = DEFAULT_LIMIT) : m_limit(limit) {}

    // [any] Keeps an event; the oldest one makes room.
    void record(const OutputEvent& event);

    // [any] From this moment of the monotonic clock on, the desk's tempo is this one. A tempo out of range is ignored.
    void setTempo(int beatsPerMinute, std::int64_t microseconds);

    // [any] How many events there are.
    std::size_t size() const;

    // [any] Forgets them.
    void clear();

    // [any] The file: one track that begins with its first event, in real time under the tempi of the desk. Nothing but
    // channel events stand in it. Notes that the limit has robbed of their beginnings are left out.
    std::optional<std::string> content() const;

    // [any] Writes it. False if that failed.
    bool write(const std::string& path) const;

private:
    struct Tempo {
        std::int64_t microseconds;
        int beatsPerMinute;
    };
    class Writing;

    const std::size_t m_limit;
    mutable std::mutex m_mutex;
    std::deque<OutputEvent> m_events;
    std::deque<Tempo> m_tempi;  // The first one counts also before its time.
};

// [any] The port through which a line feeds the recorder.
[[nodiscard]] std::unique_ptr<OpenMidiPort> openRecorder(std::shared_ptr<Recorder> recorder);

}
