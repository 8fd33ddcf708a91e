#include "Host/common/midifile/MidiFileWriter.h"

#include <algorithm>
#include <utility>

namespace Host {

namespace {

constexpr std::int64_t MAX_VARIABLE_LENGTH = 0x0fffffff;

void putBigEndian(std::string& out, std::size_t number, int size) {
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8)
        out += static_cast<char>(number >> shift & 0xff);
}

// number: 0..MAX_VARIABLE_LENGTH
void putVariableLength(std::string& out, std::int64_t number) {
    for (int shift = 21; shift > 0; shift -= 7)
        if (number >> shift != 0)
            out += static_cast<char>((number >> shift & 0x7f) | 0x80);
    out += static_cast<char>(number & 0x7f);
}

void putMeta(std::string& out, std::uint8_t type, std::string_view data) {
    out += static_cast<char>(MIDI_FILE_META);
    out += static_cast<char>(type);
    putVariableLength(out, static_cast<std::int64_t>(data.size()));
    out += data;
}

void putPause(std::string& out, std::int64_t ppq) {
    for (; ppq > MAX_VARIABLE_LENGTH; ppq -= MAX_VARIABLE_LENGTH) {
        putVariableLength(out, MAX_VARIABLE_LENGTH);
        putMeta(out, META_TEXT, {});
    }
    putVariableLength(out, ppq);
}

void putEvent(std::string& out, const MidiFileEvent& event) {
    if (event.status == MIDI_FILE_META) {
        putMeta(out, event.d1, event.data);
        return;
    }
    out += static_cast<char>(event.status | event.channel);
    if (!event.isChannelEvent()) {
        putVariableLength(out, static_cast<std::int64_t>(event.data.size()));
        out += event.data;
        return;
    }
    out += static_cast<char>(event.d1);
    if (event.status != 0xc0 && event.status != 0xd0)
        out += static_cast<char>(event.d2);
}

bool canStandInAFile(const MidiFileEvent& event) {
    if (event.tick < 0 || event.tick > MidiFileWriter::MAX_PPQ)
        return false;
    if (event.isChannelEvent())
        return event.status % 0x10 == 0 && event.channel < 16 && event.d1 < 0x80 && event.d2 < 0x80;
    const bool hasData = event.status == MIDI_FILE_SYSEX || event.status == MIDI_FILE_ESCAPE ||
                         (event.status == MIDI_FILE_META && event.d1 != META_END_OF_TRACK);
    return hasData && event.channel == 0 && event.data.size() <= static_cast<std::size_t>(MAX_VARIABLE_LENGTH);
}

using EventPointers = std::vector<const MidiFileEvent*>;

void append(EventPointers& pointers, const std::vector<MidiFileEvent>& events) {
    for (const MidiFileEvent& event : events)
        pointers.push_back(&event);
}

// Appends the chunk of a track; false if the track is too large for one.
bool putTrack(std::string& out, EventPointers events, std::int64_t end) {
    std::stable_sort(events.begin(), events.end(),
                     [](const MidiFileEvent* a, const MidiFileEvent* b) { return a->tick < b->tick; });
    std::string body;
    std::int64_t now = 0;
    for (const MidiFileEvent* event : events) {
        putPause(body, event->tick - now);
        putEvent(body, *event);
        now = event->tick;
    }
    putPause(body, std::max(end, now) - now);
    putMeta(body, META_END_OF_TRACK, {});
    if (body.size() > 0xffffffff)
        return false;
    out += "MTrk";
    putBigEndian(out, body.size(), 4);
    out += body;
    return true;
}

}

std::size_t MidiFileWriter::addTrack(std::string_view name) {
    m_tracks.emplace_back();
    const std::size_t track = m_tracks.size() - 1;
    if (!name.empty())
        add(track, makeTrackName(name));
    return track;
}

bool MidiFileWriter::add(std::size_t track, MidiFileEvent event) {
    if (track >= m_tracks.size() || !canStandInAFile(event))
        return false;
    m_tracks[track].events.push_back(std::move(event));
    return true;
}

bool MidiFileWriter::setEnd(std::size_t track, std::int64_t ppq) {
    if (track >= m_tracks.size() || ppq < 0 || ppq > MAX_PPQ)
        return false;
    m_tracks[track].end = ppq;
    return true;
}

std::optional<std::string> MidiFileWriter::content(Layout layout) const {
    const bool single = layout == Layout::SINGLE_TRACK;
    const std::size_t trackCount = single ? 1 : m_tracks.size();
    if (trackCount > 0xffff)
        return std::nullopt;
    std::string out = "MThd";
    putBigEndian(out, 6, 4);
    putBigEndian(out, single ? 0 : 1, 2);
    putBigEndian(out, trackCount, 2);
    putBigEndian(out, DIVISION, 2);
    EventPointers events;
    std::int64_t end = 0;
    for (std::size_t i = 0; i < m_tracks.size(); ++i) {
        append(events, m_tracks[i].events);
        end = std::max(end, m_tracks[i].end);
        // With a single track, all are merged before it is written.
        if (single && i + 1 < m_tracks.size())
            continue;
        if (!putTrack(out, std::move(events), end))
            return std::nullopt;
        events = {};
        end = 0;
    }
    return out;
}

}
