#include "Host/common/midifile/MidiFileClock.h"

#include <algorithm>
#include <iterator>

namespace Host {

namespace {

// value * numerator / denominator, half rounded up. The integer and fractional parts of the quotient are scaled
// separately, so that every product fits 64 bits; the asserts below use the largest of each.
std::int64_t scale(std::int64_t value, std::int64_t numerator, std::int64_t denominator) {
    return value / denominator * numerator + (value % denominator * numerator + denominator / 2) / denominator;
}

constexpr std::int64_t INT64_LIMIT = INT64_MAX;
constexpr std::int64_t MAX_TICK = MidiFileClock::MAX_TICK;
// ppq per second at the highest tempo: tempo / 60 * 480.
constexpr std::int64_t MAX_RATE = MidiFileClock::MAX_FRAME_TEMPO * std::int64_t{8};
static_assert(MAX_TICK <= INT64_LIMIT / MidiFileClock::PPQ / 2);
static_assert(MAX_TICK / 24 <= INT64_LIMIT / MAX_RATE / 2);
static_assert(MAX_TICK / 30000 <= INT64_LIMIT / (MAX_RATE * 1001) / 2);
static_assert(30000 * std::int64_t{255} <= INT64_LIMIT / (MAX_RATE * 1001) / 2);

bool isUsable(const MidiFileDivision& division) {
    if (!division.hasFrames())
        return division.ticksPerQuarter >= 1 && division.ticksPerQuarter <= 0x7fff;
    return division.framesPerSecond >= 24 && division.framesPerSecond <= 30 && division.ticksPerFrame >= 1 &&
           division.ticksPerFrame <= 0xff;
}

// frameTicks() ticks take frameSeconds() seconds, both whole numbers even for 30 drop.
std::int64_t frameSeconds(const MidiFileDivision& division) {
    return division.framesPerSecond == 29 ? 1001 : 1;
}

std::int64_t frameTicks(const MidiFileDivision& division) {
    return division.ticksPerFrame * std::int64_t{division.framesPerSecond == 29 ? 30000 : division.framesPerSecond};
}

}

MidiFileClock::MidiFileClock(const MidiFile& file, int frameTempo)
    : m_division(isUsable(file.division) ? file.division : MidiFileDivision{}),
      m_frameTempo(std::clamp(frameTempo, 1, MAX_FRAME_TEMPO)),
      m_segments{{MidiFileTempo{}, 0}} {
    if (m_division.hasFrames())
        return;
    for (const MidiFileTempo& tempo : file.tempi) {
        if (tempo.tick <= 0)
            m_segments.front().tempo = tempo;
        else
            m_segments.push_back({tempo, seconds(tempo.tick)});
    }
}

std::int64_t MidiFileClock::ppq(std::int64_t tick) const {
    tick = std::clamp(tick, std::int64_t{0}, MAX_TICK);
    if (m_division.hasFrames())
        return scale(tick, frameSeconds(m_division) * m_frameTempo * PPQ / 60, frameTicks(m_division));
    return scale(tick, PPQ, m_division.ticksPerQuarter);
}

double MidiFileClock::seconds(std::int64_t tick) const {
    tick = std::clamp(tick, std::int64_t{0}, MAX_TICK);
    if (m_division.hasFrames())
        return static_cast<double>(tick) * static_cast<double>(frameSeconds(m_division)) /
               static_cast<double>(frameTicks(m_division));
    // The last segment that has begun; the first one always has.
    const auto next = std::upper_bound(m_segments.begin() + 1, m_segments.end(), tick,
                                       [](std::int64_t t, const Segment& segment) { return t < segment.tempo.tick; });
    const Segment& segment = *std::prev(next);
    return segment.seconds + static_cast<double>(tick - segment.tempo.tick) *
                                 static_cast<double>(segment.tempo.microsecondsPerQuarter) / 1e6 /
                                 m_division.ticksPerQuarter;
}

std::vector<MidiFileTempo> MidiFileClock::ppqTempi() const {
    if (m_division.hasFrames())
        return {{0, static_cast<std::uint32_t>(scale(60000000, 1, m_frameTempo))}};
    std::vector<MidiFileTempo> tempi;
    for (const Segment& segment : m_segments) {
        const MidiFileTempo tempo{ppq(segment.tempo.tick), segment.tempo.microsecondsPerQuarter};
        if (!tempi.empty() && tempi.back().tick == tempo.tick)
            tempi.back() = tempo;
        else
            tempi.push_back(tempo);
    }
    return tempi;
}

}
