// Any bytes as a MIDI file. Files that can be read are written in both layouts and read back, and must give the same
// events.
#include "Host/common/midifile/MidiFileClock.h"
#include "Host/common/midifile/MidiFileReader.h"
#include "Host/common/midifile/MidiFileWriter.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace Host;

void require(bool holds) {
    if (!holds)
        std::abort();
}

// The writer bridges pauses with empty texts, so they don't count in a comparison.
bool isBridge(const MidiFileEvent& event) {
    return event.isMeta(META_TEXT) && event.data.empty();
}

std::vector<MidiFileEvent> withoutBridges(const std::vector<MidiFileEvent>& events) {
    std::vector<MidiFileEvent> rest;
    for (const MidiFileEvent& event : events)
        if (!isBridge(event))
            rest.push_back(event);
    return rest;
}

MidiFile readBack(const MidiFileWriter& writer, MidiFileWriter::Layout layout) {
    const auto content = writer.content(layout);
    require(content.has_value());
    MidiFileResult result = readMidiFile(*content);
    require(!result.error);
    require(result.file.counts.tracksWithoutEnd == 0 && result.file.counts.bytesAfterLastTrack == 0);
    return result.file;
}

void roundTrip(MidiFile file) {
    const MidiFileClock clock(file);
    if (clock.ppq(endTick(file)) > MidiFileWriter::MAX_PPQ)
        return;
    MidiFileWriter writer;
    for (std::size_t i = 0; i < file.tracks.size(); ++i) {
        const std::size_t track = i == 0 ? MidiFileWriter::CONDUCTOR : writer.addTrack();
        std::int64_t last = 0;
        for (MidiFileEvent& event : file.tracks[i].events) {
            require(clock.seconds(event.tick) >= 0);
            event.tick = clock.ppq(event.tick);
            require(event.tick >= last);
            last = event.tick;
            require(writer.add(track, event));
        }
        file.tracks[i].endTick = clock.ppq(file.tracks[i].endTick);
        require(file.tracks[i].endTick >= last);
        require(writer.setEnd(track, file.tracks[i].endTick));
    }

    const MidiFile apart = readBack(writer, MidiFileWriter::Layout::TRACKS);
    require(apart.tracks.size() == std::max<std::size_t>(file.tracks.size(), 1));
    for (std::size_t i = 0; i < file.tracks.size(); ++i) {
        require(withoutBridges(apart.tracks[i].events) == withoutBridges(file.tracks[i].events));
        require(apart.tracks[i].endTick == file.tracks[i].endTick);
        require(apart.tracks[i].name == file.tracks[i].name);
    }

    const MidiFile together = readBack(writer, MidiFileWriter::Layout::SINGLE_TRACK);
    require(together.tracks.size() == 1);
    std::vector<MidiFileEvent> merged;
    for (const MidiFileMergedEvent& event : mergedEvents(file))
        merged.push_back(*event.event);
    require(withoutBridges(together.tracks[0].events) == withoutBridges(merged));
    require(endTick(together) == endTick(file));
    require(together.tempi == apart.tempi && together.timeSignatures == apart.timeSignatures);
    // Where one ppq holds several ticks, which of their tempi is the last depends on the tracks.
    if (!file.division.hasFrames() && file.division.ticksPerQuarter <= MidiFileClock::PPQ)
        require(MidiFileClock(apart).ppqTempi() == clock.ppqTempi());
}

}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    MidiFileResult result = Host::readMidiFile({reinterpret_cast<const char*>(data), size});
    if (result.error)
        require(!result.error->empty() && result.error->find('\n') == std::string::npos && result.file.tracks.empty());
    else
        roundTrip(std::move(result.file));
    return 0;
}
