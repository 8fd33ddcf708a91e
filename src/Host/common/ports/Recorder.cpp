#include "Host/common/ports/Recorder.h"

#include "Host/common/midifile/MidiFileWriter.h"
#include "Platform/Files.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace Host {

namespace {

constexpr int DEFAULT_TEMPO = 120;
constexpr int LOWEST_TEMPO = 4;  // The slowest that a file can express.
constexpr int HIGHEST_TEMPO = 1000;
constexpr std::size_t MAX_TEMPI = 4096;
constexpr std::int64_t MICROSECONDS_PER_MINUTE = 60000000;

class RecorderPort : public OpenMidiPort {
public:
    explicit RecorderPort(std::shared_ptr<Recorder> recorder) : m_recorder(std::move(recorder)) {}

    bool send(const std::uint8_t* bytes, std::size_t count, std::int64_t microseconds) override {
        std::uint32_t word = 0;
        for (std::size_t i = 0; i < std::min<std::size_t>(count, 3); ++i)
            word |= std::uint32_t{bytes[i]} << 8 * i;
        m_recorder->record({word, microseconds});
        return true;
    }

private:
    const std::shared_ptr<Recorder> m_recorder;
};

bool isChannelEvent(const OutputEvent& event) {
    return event.status() >= 0x80 && event.status() < 0xf0 && event.d1() < 0x80 && event.d2() < 0x80;
}

}

// Turns moments into ppq, tempo by tempo, while a file is built.
class Recorder::Writing {
public:
    Writing(std::int64_t start, std::deque<Tempo> tempi) : m_tempi(std::move(tempi)), m_since(start), m_end(start) {
        while (!m_tempi.empty() && (m_tempi.front().microseconds <= start || m_isFirst)) {
            m_tempo = m_tempi.front().beatsPerMinute;
            m_tempi.pop_front();
            m_isFirst = false;
        }
        writeTempo();
    }

    void add(const OutputEvent& event) {
        // What was played on two threads may arrive slightly out of order.
        m_end = std::max(m_end, event.microseconds);
        while (!m_tempi.empty() && m_tempi.front().microseconds <= m_end) {
            m_ppq = ppqAt(m_tempi.front().microseconds);
            m_since = m_tempi.front().microseconds;
            m_tempo = m_tempi.front().beatsPerMinute;
            m_tempi.pop_front();
            writeTempo();
        }
        if (!isChannelEvent(event) || isEndWithoutBeginning(event))
            return;
        MidiFileEvent written;
        written.tick = tick(ppqAt(m_end));
        written.status = event.kind();
        written.channel = event.channel();
        written.d1 = event.d1();
        written.d2 = event.d2();
        m_writer.add(MidiFileWriter::CONDUCTOR, std::move(written));
    }

    std::optional<std::string> content() const { return m_writer.content(MidiFileWriter::Layout::SINGLE_TRACK); }

private:
    double ppqAt(std::int64_t microseconds) const {
        return m_ppq + static_cast<double>(microseconds - m_since) * m_tempo * MidiFileWriter::DIVISION /
                           static_cast<double>(MICROSECONDS_PER_MINUTE);
    }

    static std::int64_t tick(double ppq) { return std::llround(ppq); }

    void writeTempo() {
        m_writer.add(MidiFileWriter::CONDUCTOR,
                     makeTempo(tick(m_ppq), static_cast<std::uint32_t>(MICROSECONDS_PER_MINUTE / m_tempo)));
    }

    bool isEndWithoutBeginning(const OutputEvent& event) {
        unsigned& count = m_sounding[event.channel()][event.d1()];
        if (event.isNoteOn())
            ++count;
        if (!event.isNoteOff())
            return false;
        if (count == 0)
            return true;
        --count;
        return false;
    }

    MidiFileWriter m_writer;
    std::deque<Tempo> m_tempi;  // Those still to come.
    bool m_isFirst = true;
    int m_tempo = DEFAULT_TEMPO;
    std::int64_t m_since;  // Start of the current tempo, which began at m_ppq.
    std::int64_t m_end;
    double m_ppq = 0;
    std::array<std::array<unsigned, 128>, 16> m_sounding{};
};

void Recorder::record(const OutputEvent& event) {
    const std::lock_guard lock(m_mutex);
    m_events.push_back(event);
    if (m_events.size() > m_limit)
        m_events.pop_front();
}

void Recorder::setTempo(int beatsPerMinute, std::int64_t microseconds) {
    if (beatsPerMinute < LOWEST_TEMPO || beatsPerMinute > HIGHEST_TEMPO)
        return;
    const std::lock_guard lock(m_mutex);
    m_tempi.push_back({microseconds, beatsPerMinute});
    // Tempi from before the first event no longer count, except for the last of them.
    while (m_tempi.size() > 1 &&
           (m_tempi.size() > MAX_TEMPI || m_events.empty() || m_tempi[1].microseconds <= m_events.front().microseconds))
        m_tempi.pop_front();
}

std::size_t Recorder::size() const {
    const std::lock_guard lock(m_mutex);
    return m_events.size();
}

void Recorder::clear() {
    const std::lock_guard lock(m_mutex);
    m_events.clear();
}

std::optional<std::string> Recorder::content() const {
    std::deque<OutputEvent> events;
    std::deque<Tempo> tempi;
    {
        const std::lock_guard lock(m_mutex);
        events = m_events;
        tempi = m_tempi;
    }
    Writing writing(events.empty() ? 0 : events.front().microseconds, std::move(tempi));
    for (const OutputEvent& event : events)
        writing.add(event);
    return writing.content();
}

bool Recorder::write(const std::string& path) const {
    const auto file = content();
    return file && Platform::Files::replace(path, *file);
}

std::unique_ptr<OpenMidiPort> openRecorder(std::shared_ptr<Recorder> recorder) {
    return std::make_unique<RecorderPort>(std::move(recorder));
}

}
