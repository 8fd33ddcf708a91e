#include "Host/common/midifile/MidiFileReader.h"

#include "Host/common/midifile/MidiFileBytes.h"

#include <algorithm>
#include <utility>

namespace Host {

namespace {

std::string text(std::size_t number) {
    return std::to_string(number);
}

// Reads the chunk of one track into a file, only ever adding to it.
class TrackParser {
public:
    TrackParser(MidiFileBytes& bytes, MidiFile& file, std::size_t maxEvents, std::size_t& eventCount)
        : m_bytes(bytes), m_file(file), m_maxEvents(maxEvents), m_eventCount(eventCount) {}

    void parse();

private:
    void parseEvent();
    void parseMeta();
    void parseSysex(std::uint8_t status);
    void parseChannelEvent(std::uint8_t status);
    void skipSystemMessage(std::size_t at, std::uint8_t status);
    std::uint8_t dataByte();

    MidiFileBytes& m_bytes;
    MidiFile& m_file;
    const std::size_t m_maxEvents;
    std::size_t& m_eventCount;
    MidiFileTrack m_track;
    std::int64_t m_tick = 0;
    std::uint8_t m_runningStatus = 0;  // Including the channel; 0 for none.
    bool m_sysexOpen = false;
    bool m_ended = false;
};

void TrackParser::parse() {
    while (!m_ended && m_bytes.remaining() > 0)
        parseEvent();
    m_track.endTick = m_tick;
    if (m_ended)
        m_file.counts.bytesAfterTrackEnds += m_bytes.remaining();
    else
        ++m_file.counts.tracksWithoutEnd;
    m_file.tracks.push_back(std::move(m_track));
}

void TrackParser::parseEvent() {
    // Skipped events count too, since they advance the time: so no tick can overflow.
    if (++m_eventCount > m_maxEvents) {
        m_bytes.fail(m_bytes.position(), "more than " + text(m_maxEvents) + " events");
        return;
    }
    m_tick += m_bytes.variableLength();
    const std::size_t at = m_bytes.position();
    if (m_bytes.peek() < 0x80 && m_bytes.remaining() > 0) {
        if (m_runningStatus == 0)
            m_bytes.fail(at, "a data byte without a status before it");
        else
            parseChannelEvent(m_runningStatus);
        return;
    }
    const std::uint8_t status = m_bytes.byte();
    if (m_bytes.error())
        return;
    if (status < 0xf0) {
        m_runningStatus = status;
        parseChannelEvent(status);
        return;
    }
    if (status < 0xf8 || status == MIDI_FILE_META)
        m_runningStatus = 0;
    if (status == MIDI_FILE_META)
        parseMeta();
    else if (status == MIDI_FILE_SYSEX || status == MIDI_FILE_ESCAPE)
        parseSysex(status);
    else
        skipSystemMessage(at, status);
}

void TrackParser::parseMeta() {
    MidiFileEvent event{m_tick, MIDI_FILE_META, 0, m_bytes.byte(), 0, {}};
    event.data = m_bytes.take(m_bytes.variableLength());
    if (m_bytes.error())
        return;
    ++m_file.counts.metas;
    if (event.d1 == META_END_OF_TRACK) {
        m_ended = true;
        return;
    }
    if (event.d1 == META_TRACK_NAME && m_track.name.empty())
        m_track.name = event.data;
    const auto tempo = tempoOf(event);
    const auto timeSignature = timeSignatureOf(event);
    if (tempo)
        m_file.tempi.push_back(*tempo);
    else if (timeSignature)
        m_file.timeSignatures.push_back(*timeSignature);
    else if (event.d1 == META_TEMPO || event.d1 == META_TIME_SIGNATURE)
        ++m_file.counts.malformedMetas;
    m_track.events.push_back(std::move(event));
}

void TrackParser::parseSysex(std::uint8_t status) {
    MidiFileEvent event{m_tick, status, 0, 0, 0, {}};
    event.data = m_bytes.take(m_bytes.variableLength());
    if (m_bytes.error())
        return;
    MidiFileCounts& counts = m_file.counts;
    if (status == MIDI_FILE_SYSEX)
        ++counts.sysexes;
    else
        ++(m_sysexOpen ? counts.continuations : counts.escapes);
    if (status == MIDI_FILE_SYSEX || m_sysexOpen)
        m_sysexOpen = event.data.empty() || event.data.back() != '\xf7';
    m_track.events.push_back(std::move(event));
}

void TrackParser::parseChannelEvent(std::uint8_t status) {
    MidiFileEvent event{
        m_tick, static_cast<std::uint8_t>(status & 0xf0), static_cast<std::uint8_t>(status & 0x0f), 0, 0, {}};
    event.d1 = dataByte();
    if (event.status != 0xc0 && event.status != 0xd0)
        event.d2 = dataByte();
    if (m_bytes.error())
        return;
    ++m_file.counts.channelEvents[static_cast<std::size_t>((status >> 4) - 8)];
    m_track.events.push_back(std::move(event));
}

void TrackParser::skipSystemMessage(std::size_t at, std::uint8_t status) {
    if (status == 0xf4 || status == 0xf5) {
        m_bytes.fail(at, "a system message of unknown length in a track");
        return;
    }
    const int size = status == 0xf2 ? 2 : status == 0xf1 || status == 0xf3 ? 1 : 0;
    for (int i = 0; i < size; ++i)
        dataByte();
    ++m_file.counts.skippedSystemMessages;
}

std::uint8_t TrackParser::dataByte() {
    const std::size_t at = m_bytes.position();
    const std::uint8_t data = m_bytes.byte();
    if (data >= 0x80)
        m_bytes.fail(at, "a status where a data byte belongs");
    return data;
}

void parseDivision(MidiFileBytes& bytes, MidiFileDivision& division) {
    const std::size_t at = bytes.position();
    const int word = static_cast<int>(bytes.bigEndian(2));
    if (bytes.error())
        return;
    if (word < 0x8000) {
        division = {word, 0, 0};
        if (word == 0)
            bytes.fail(at, "a division of zero ticks per quarter note");
        return;
    }
    // The high byte is the negative of the frame rate, in two's complement.
    division = {0, 0x100 - (word >> 8), word & 0xff};
    const int rate = division.framesPerSecond;
    if (rate != 24 && rate != 25 && rate != 29 && rate != 30)
        bytes.fail(at, "an unknown rate of " + std::to_string(rate) + " frames");
    else if (division.ticksPerFrame == 0)
        bytes.fail(at, "a division of zero ticks per frame");
}

// Returns the number of tracks that the header announces.
std::size_t parseHeader(MidiFileBytes& bytes, MidiFile& file) {
    if (bytes.remaining() < 4 || bytes.take(4) != "MThd") {
        bytes.fail(0, "not a standard MIDI file: its header is missing");
        return 0;
    }
    const std::size_t size = bytes.bigEndian(4);
    if (!bytes.error() && size < 6)
        bytes.fail(4, "a header of " + text(size) + " bytes, at least 6 expected");
    const std::uint32_t format = bytes.bigEndian(2);
    if (!bytes.error() && format == 2)
        bytes.fail(8, "format 2 (patterns without an order) can't be read, only 0 and 1");
    else if (!bytes.error() && format > 2)
        bytes.fail(8, "unknown format " + text(format) + ", only 0 and 1 can be read");
    file.format = static_cast<int>(format);
    const std::size_t trackCount = bytes.bigEndian(2);
    parseDivision(bytes, file.division);
    if (!bytes.error())
        bytes.take(size - 6);
    return trackCount;
}

// Sorts by tick and keeps the last one of each tick. The list is collected track by track, so the order within a tick
// is that of the merged events.
template <class Change>
void settle(std::vector<Change>& changes) {
    std::stable_sort(changes.begin(), changes.end(), [](const Change& a, const Change& b) { return a.tick < b.tick; });
    const auto sameTick = [](const Change& a, const Change& b) { return a.tick == b.tick; };
    // unique keeps the first of equals; run backwards, that is the last.
    changes.erase(changes.begin(), std::unique(changes.rbegin(), changes.rend(), sameTick).base());
}

void parseTracks(std::string_view all, MidiFileBytes& bytes, std::size_t trackCount, std::size_t maxEvents,
                 MidiFile& file) {
    std::size_t eventCount = 0;
    // Reserve nothing on the header's word: only a track that exists may cost memory.
    while (!bytes.error() && file.tracks.size() < trackCount) {
        const std::size_t number = file.tracks.size() + 1;
        const std::size_t at = bytes.position();
        if (bytes.remaining() < 8) {
            bytes.fail(at, "track " + text(number) + " of " + text(trackCount) + " is missing, the file ends at byte " +
                               text(all.size()));
            return;
        }
        const std::string_view kind = bytes.take(4);
        const std::size_t size = bytes.bigEndian(4);
        if (size > bytes.remaining()) {
            bytes.fail(at, (kind == "MTrk" ? "track " + text(number) : "a chunk") + " of " + text(size) +
                               " bytes is cut off, the file ends at byte " + text(all.size()));
            return;
        }
        if (kind == "MTrk") {
            MidiFileBytes chunk(all, bytes.position(), bytes.position() + size, "track " + text(number));
            TrackParser(chunk, file, maxEvents, eventCount).parse();
            bytes.adoptError(chunk);
        } else {
            ++file.counts.unknownChunks;
        }
        bytes.take(size);
    }
    file.counts.bytesAfterLastTrack = bytes.remaining();
}

}

MidiFileResult readMidiFile(std::string_view bytes, std::size_t maxEvents) {
    MidiFileResult result;
    MidiFileBytes all(bytes, 0, bytes.size(), "");
    const std::size_t trackCount = parseHeader(all, result.file);
    parseTracks(bytes, all, trackCount, std::min(maxEvents, MIDI_FILE_MAX_EVENTS), result.file);
    if (all.error()) {
        // Return the error without the half-read file, so that nobody takes it for the whole.
        return {{}, all.error()};
    }
    settle(result.file.tempi);
    settle(result.file.timeSignatures);
    return result;
}

}
