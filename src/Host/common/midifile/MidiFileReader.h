// Reads standard MIDI files of formats 0 and 1 from memory.
//
// Refused, with one line that gives the byte and the reason: no header, format 2 or an unknown one, a division of zero
// length, fewer tracks than the header announces, a chunk or an event that runs past its end, a variable-length number
// of more than four bytes, a data byte before any status (running status ends at every meta, sysex and system common
// event), a status where a data byte belongs, 0xf4 and 0xf5 in a track, more events than requested.
//
// Tolerated, with a count in MidiFileCounts: chunks of other kinds, bytes after the last track or after a track's end,
// tracks without an end or without a byte, malformed tempi, system common and real-time messages bare in a track (they
// don't belong there, but their length is known, so they are skipped). A longer header and several tracks in format 0
// are read as they are, and so is a file without tracks.
#pragma once

#include "Host/common/midifile/MidiFile.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace Host {

// More than any score needs. It bounds the memory that a hostile file can ask for (a few hundred MB), and keeps all
// ticks below MidiFileClock::MAX_TICK.
inline constexpr std::size_t MIDI_FILE_MAX_EVENTS = std::size_t{1} << 22;

struct MidiFileResult {
    MidiFile file;                     // Empty after an error.
    std::optional<std::string> error;  // One line without the file's name, as "byte 22, track 1: ...".
};

// [any] Throws only when out of memory. The result shares nothing with the bytes. A maxEvents above
// MIDI_FILE_MAX_EVENTS is lowered to it.
MidiFileResult readMidiFile(std::string_view bytes, std::size_t maxEvents = MIDI_FILE_MAX_EVENTS);

}
