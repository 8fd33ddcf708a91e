// What a standard MIDI file holds, as plain values. Ticks count from the start of the file in the file's own division;
// MidiFileClock turns them into ppq or seconds. Everything here is [any]: values without shared state.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Host {

inline constexpr std::uint8_t MIDI_FILE_SYSEX = 0xf0;
inline constexpr std::uint8_t MIDI_FILE_ESCAPE = 0xf7;
inline constexpr std::uint8_t MIDI_FILE_META = 0xff;

inline constexpr std::uint8_t META_TEXT = 0x01;
inline constexpr std::uint8_t META_TRACK_NAME = 0x03;
inline constexpr std::uint8_t META_END_OF_TRACK = 0x2f;
inline constexpr std::uint8_t META_TEMPO = 0x51;
inline constexpr std::uint8_t META_TIME_SIGNATURE = 0x58;

// The tempo of a file before its first tempo event: 120 beats a minute.
inline constexpr std::uint32_t DEFAULT_MICROSECONDS_PER_QUARTER = 500000;

struct MidiFileEvent {
    std::int64_t tick = 0;
    std::uint8_t status = 0;   // 0x80, 0x90 ... 0xe0 without the channel, or one of the three constants above.
    std::uint8_t channel = 0;  // 0..15; 0 if the event has no channel.
    std::uint8_t d1 = 0;       // 0..127; the type of a meta event.
    std::uint8_t d2 = 0;       // 0..127; 0 if the event has no second byte.
    std::string data;          // What follows the length of a meta or sysex event; a sysex includes its closing 0xf7.

    bool isChannelEvent() const { return status >= 0x80 && status <= 0xe0; }
    bool isMeta(std::uint8_t type) const { return status == MIDI_FILE_META && d1 == type; }
    bool operator==(const MidiFileEvent&) const = default;
};

// How long a tick is: a part of a quarter note or, with framesPerSecond set, a part of a film frame.
struct MidiFileDivision {
    int ticksPerQuarter = 480;  // 1..32767; 0 with frames.
    int framesPerSecond = 0;    // 0, 24, 25, 29 or 30; 29 is the 30 drop of television, 30000 frames in 1001 seconds.
    int ticksPerFrame = 0;      // 1..255; 0 without frames.

    bool hasFrames() const { return framesPerSecond != 0; }
    bool operator==(const MidiFileDivision&) const = default;
};

struct MidiFileTrack {
    std::string name;                   // The first track name in it, byte for byte; empty if there is none.
    std::vector<MidiFileEvent> events;  // In file order, so with ascending ticks; without the end of track.
    std::int64_t endTick = 0;           // Of the end of track, or else of the last event.

    bool operator==(const MidiFileTrack&) const = default;
};

struct MidiFileTempo {
    std::int64_t tick = 0;
    std::uint32_t microsecondsPerQuarter = DEFAULT_MICROSECONDS_PER_QUARTER;  // 1..0xffffff

    bool operator==(const MidiFileTempo&) const = default;
};

struct MidiFileTimeSignature {
    std::int64_t tick = 0;
    int numerator = 4;         // 1..255
    int denominatorPower = 2;  // 0..255: 2 is a quarter, 3 an eighth.

    bool operator==(const MidiFileTimeSignature&) const = default;
};

// What was found while reading, including what was skipped: nothing is lost without being counted.
struct MidiFileCounts {
    std::array<std::size_t, 7> channelEvents{};  // By (status >> 4) - 8: note-offs, note-ons, ..., pitch bends.
    std::size_t sysexes = 0;                     // Begun with 0xf0.
    std::size_t continuations = 0;               // 0xf7 events that continue an open sysex.
    std::size_t escapes = 0;                     // Other 0xf7 events.
    std::size_t metas = 0;                       // Including the ends of the tracks.
    std::size_t malformedMetas = 0;              // Tempi and time signatures too short or zero: kept, without effect.
    std::size_t skippedSystemMessages = 0;       // 0xf1 to 0xf3, 0xf6 and real-time bytes bare in a track.
    std::size_t unknownChunks = 0;
    std::size_t tracksWithoutEnd = 0;
    std::size_t bytesAfterTrackEnds = 0;  // In tracks, after their end of track.
    std::size_t bytesAfterLastTrack = 0;  // After the last track announced in the header.

    // The number of events with a status of 0x80, 0x90 ... 0xe0. Note-ons with velocity 0 count as note-ons.
    std::size_t channelEventsOf(std::uint8_t status) const;
};

struct MidiFile {
    int format = 1;  // 0 or 1.
    MidiFileDivision division;
    std::vector<MidiFileTrack> tracks;
    std::vector<MidiFileTempo> tempi;                   // Of all tracks by tick, the last one of each tick.
    std::vector<MidiFileTimeSignature> timeSignatures;  // Likewise.
    MidiFileCounts counts;
};

struct MidiFileMergedEvent {
    std::size_t track;
    const MidiFileEvent* event;
};

// The events of all tracks by tick; at the same tick by track, and within a track in file order. Valid while the file
// is unchanged.
std::vector<MidiFileMergedEvent> mergedEvents(const MidiFile& file);

// The largest tick of the file: of an event or of the end of a track.
std::int64_t endTick(const MidiFile& file);

// Meta events. A tempo is clamped to 1..0xffffff microseconds; a name may hold any bytes.
MidiFileEvent makeTempo(std::int64_t tick, std::uint32_t microsecondsPerQuarter);
MidiFileEvent makeTimeSignature(std::int64_t tick, std::uint8_t numerator, std::uint8_t denominatorPower);
MidiFileEvent makeTrackName(std::string_view name);

// What such an event says. Nothing for another event, too few bytes, or a tempo or numerator of 0. Surplus bytes are
// allowed.
[[nodiscard]] std::optional<MidiFileTempo> tempoOf(const MidiFileEvent& event);
[[nodiscard]] std::optional<MidiFileTimeSignature> timeSignatureOf(const MidiFileEvent& event);

}
