// Turns the ticks of one MIDI file into ppq (480 to the quarter note) and into seconds.
//
// With a division in quarter notes, ppq is musical time: the file's tempi don't affect it, and ppqTempi() keeps them
// for whoever plays or writes the events. With a division in frames, ticks are real time, the file's tempi are
// meaningless, and ppq follows from one tempo for the whole file.
#pragma once

#include "Host/common/midifile/MidiFile.h"

#include <cstdint>
#include <vector>

namespace Host {

class MidiFileClock {
public:
    static constexpr int PPQ = 480;
    // Ticks are clamped to 0..MAX_TICK, which no file read by readMidiFile exceeds.
    static constexpr std::int64_t MAX_TICK = std::int64_t{1} << 50;
    static constexpr int MAX_FRAME_TEMPO = 1000;

    // [any] frameTempo: beats per minute for a division in frames, clamped to 1..MAX_FRAME_TEMPO. The file isn't needed
    // afterwards. A division that readMidiFile can't give counts as the default one.
    explicit MidiFileClock(const MidiFile& file, int frameTempo = 120);

    // [any] The time of a tick in ppq, rounded exactly to the nearest, half a ppq up.
    std::int64_t ppq(std::int64_t tick) const;

    // [any] The time of a tick in seconds from the start of the file.
    double seconds(std::int64_t tick) const;

    // [any] The tempi with their ticks in ppq, ascending, one per ppq (the last). With frames, the one tempo at 0.
    std::vector<MidiFileTempo> ppqTempi() const;

private:
    // One tempo holds from here on.
    struct Segment {
        MidiFileTempo tempo;
        double seconds;
    };

    MidiFileDivision m_division;
    int m_frameTempo;
    std::vector<Segment> m_segments;  // By tick, the first at 0.
};

}
