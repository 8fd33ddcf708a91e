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

// The output that every desk has: it keeps the newest events played, up to a limit, in memory and turns them into a
// standard MIDI file.
class Recorder {
public:
    static constexpr const char* NAME = "Recorder";
    // Some hours of busy playing.
    static constexpr std::size_t DEFAULT_LIMIT = 1 << 20;

    explicit Recorder(std::size_t limit = DEFAULT_LIMIT) : m_limit(limit) {}

    // [any] Keeps an event; when full, drops the oldest.
    void record(const OutputEvent& event);

    // [any] Sets the desk's tempo from this moment of the monotonic clock on. A tempo out of range is ignored.
    void setTempo(int beatsPerMinute, std::int64_t microseconds);

    // [any] How many events there are.
    std::size_t size() const;

    // [any] Forgets them.
    void clear();

    // [any] The file: one track that begins with its first event, in real time under the desk's tempi. It holds channel
    // events only, without notes whose beginnings the limit has dropped.
    std::optional<std::string> content() const;

    // [any] Writes the file. False if that failed.
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
    std::deque<Tempo> m_tempi;  // The first one also applies before its time.
};

// [any] The port through which a line feeds the recorder.
[[nodiscard]] std::unique_ptr<OpenMidiPort> openRecorder(std::shared_ptr<Recorder> recorder);

}
