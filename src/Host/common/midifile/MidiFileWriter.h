// Makes a standard MIDI file in memory: events with times in ppq (480 to the quarter) go in, in any order; the bytes
// come out. What it writes, readMidiFile reads back with the same events in the same order.
#pragma once

#include "Host/common/midifile/MidiFile.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Host {

class MidiFileWriter {
public:
    static constexpr int DIVISION = 480;
    // More than thirty years at 120 quarters a minute.
    static constexpr std::int64_t MAX_PPQ = std::int64_t{1} << 40;
    // The track that is always there. In a file of several tracks it is the first: the place for tempi, time signatures
    // and the title.
    static constexpr std::size_t CONDUCTOR = 0;

    enum class Layout {
        SINGLE_TRACK,  // Format 0: the events of all tracks in one, at the same time by track.
        TRACKS         // Format 1.
    };

    // [any] Adds a track and, unless it is empty or longer than an event may be, its name; returns its number. Any
    // number of tracks may be added, but content() knows a limit.
    std::size_t addTrack(std::string_view name = {});

    // [any] Adds an event; its tick is in ppq. Events of the same time keep the order in which they are added. False,
    // and nothing added, for what can't stand in a file: no such track, a tick outside 0..MAX_PPQ, a status that is no
    // channel event, sysex or meta, a channel above 15, a data byte above 127, more than 0x0fffffff bytes of data, an
    // end of track (each track gets its own). The d2 of an event that has none is left out.
    bool add(std::size_t track, MidiFileEvent event);

    // [any] The time in ppq before which the track doesn't end; it ends there or at its last event. False, and nothing
    // done, without such a track or with a time outside 0..MAX_PPQ.
    bool setEnd(std::size_t track, std::int64_t ppq);

    // [any] The whole file. Pauses longer than the format can tell at once (0x0fffffff ppq) are bridged with empty text
    // events. Nothing if there are more tracks than the format can count (0xffff) or a track takes 4 GiB or more.
    std::optional<std::string> content(Layout layout) const;

private:
    struct Track {
        std::vector<MidiFileEvent> events;
        std::int64_t end = 0;
    };

    std::vector<Track> m_tracks{1};
};

}
