#include "Host/common/midifile/MidiFile.h"

#include <algorithm>
#include <utility>

namespace Host {

namespace {

MidiFileEvent makeMeta(std::int64_t tick, std::uint8_t type, std::string data) {
    return {tick, MIDI_FILE_META, 0, type, 0, std::move(data)};
}

std::uint8_t byteAt(const std::string& data, std::size_t index) {
    return static_cast<std::uint8_t>(data[index]);
}

}

std::size_t MidiFileCounts::channelEventsOf(std::uint8_t status) const {
    return status < 0x80 || status >= 0xf0 ? 0 : channelEvents[static_cast<std::size_t>((status >> 4) - 8)];
}

std::vector<MidiFileMergedEvent> mergedEvents(const MidiFile& file) {
    std::vector<MidiFileMergedEvent> merged;
    std::size_t size = 0;
    for (const MidiFileTrack& track : file.tracks)
        size += track.events.size();
    merged.reserve(size);
    for (std::size_t track = 0; track < file.tracks.size(); ++track)
        for (const MidiFileEvent& event : file.tracks[track].events)
            merged.push_back({track, &event});
    std::stable_sort(merged.begin(), merged.end(), [](const MidiFileMergedEvent& a, const MidiFileMergedEvent& b) {
        return a.event->tick < b.event->tick;
    });
    return merged;
}

std::int64_t endTick(const MidiFile& file) {
    std::int64_t end = 0;
    for (const MidiFileTrack& track : file.tracks)
        end = std::max(end, track.endTick);
    return end;
}

MidiFileEvent makeTempo(std::int64_t tick, std::uint32_t microsecondsPerQuarter) {
    const std::uint32_t tempo = std::clamp(microsecondsPerQuarter, 1u, 0xffffffu);
    return makeMeta(tick, META_TEMPO,
                    {static_cast<char>(tempo >> 16), static_cast<char>(tempo >> 8), static_cast<char>(tempo)});
}

MidiFileEvent makeTimeSignature(std::int64_t tick, std::uint8_t numerator, std::uint8_t denominatorPower) {
    // A click every quarter note (24 MIDI clocks) and 8 notated 32nds to the quarter, as in nearly every file.
    return makeMeta(tick, META_TIME_SIGNATURE,
                    {static_cast<char>(numerator), static_cast<char>(denominatorPower), 24, 8});
}

MidiFileEvent makeTrackName(std::string_view name) {
    return makeMeta(0, META_TRACK_NAME, std::string(name));
}

std::optional<MidiFileTempo> tempoOf(const MidiFileEvent& event) {
    if (!event.isMeta(META_TEMPO) || event.data.size() < 3)
        return std::nullopt;
    const std::uint32_t tempo = static_cast<std::uint32_t>(byteAt(event.data, 0)) << 16 |
                                static_cast<std::uint32_t>(byteAt(event.data, 1)) << 8 | byteAt(event.data, 2);
    if (tempo == 0)
        return std::nullopt;
    return MidiFileTempo{event.tick, tempo};
}

std::optional<MidiFileTimeSignature> timeSignatureOf(const MidiFileEvent& event) {
    if (!event.isMeta(META_TIME_SIGNATURE) || event.data.size() < 4 || event.data[0] == 0)
        return std::nullopt;
    return MidiFileTimeSignature{event.tick, byteAt(event.data, 0), byteAt(event.data, 1)};
}

}
