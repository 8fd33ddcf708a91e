// Builds a standard MIDI file in memory from events with times in ppq (480 to the quarter note), added in any order.
// readMidiFile reads the same events back in the same order.
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
    // More than thirty years at 120 beats a minute.
    static constexpr std::int64_t MAX_PPQ = std::int64_t{1} << 40;
    // The track that always exists. In a file of several tracks it is the first: the place for tempi, time signatures
    // and the title.
    static constexpr std::size_t CONDUCTOR = 0;

    enum class Layout {
        SINGLE_TRACK,  // Format 0: the events of all tracks in one, by track at the same time.
        TRACKS         // Format 1.
    };

    // [any] Adds a track with this name, which is left out if it is empty or longer than an event may be; returns its
    // number. Any number of tracks may be added, but content() has a limit.
    std::size_t addTrack(std::string_view name = {});

    // [any] Adds an event; its tick is in ppq. Events at the same time keep the order in which they are added. False,
    // and nothing added, for what a file can't hold: a missing track, a tick outside 0..MAX_PPQ, a status other than a
    // channel event, sysex or meta, a channel above 15, a data byte above 127, more than 0x0fffffff bytes of data, an
    // end of track (each track gets its own). d2 is dropped from an event that doesn't use it.
    bool add(std::size_t track, MidiFileEvent event);

    // [any] Keeps the track from ending before this time in ppq; it ends there or at its last event. False, and nothing
    // done, for a missing track or a time outside 0..MAX_PPQ.
    bool setEnd(std::size_t track, std::int64_t ppq);

    // [any] The whole file. Pauses too long for one delta time (over 0x0fffffff ppq) are bridged with empty text
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
