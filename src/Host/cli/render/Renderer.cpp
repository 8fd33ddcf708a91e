#include "Host/cli/render/Renderer.h"

#include "Backend/midi/NoteRange.h"
#include "Host/common/midifile/MidiFileClock.h"
#include "Host/common/midifile/MidiFileReader.h"
#include "Host/common/midifile/MidiFileWriter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <tuple>

namespace Host::Cli {

using namespace Backend;
using MidiEngine::MidiMessage;
using MidiEngine::MirelMidiMessage;

namespace {

constexpr int DEFAULT_TEMPO = 120;

// How far ahead of the clock events are queued.
constexpr std::int32_t LOOK_AHEAD = 480;

// How long arpeggios may continue after the end of the file: sixteen bars.
constexpr std::int32_t LONGEST_TAIL = 16 * 4 * 480;

constexpr std::uint32_t MICROSECONDS_PER_MINUTE = 60000000;

}

Renderer::Renderer(const MidiFile& file, const Layers::LayerList& layers, const Zones::ZoneMap& zones,
                   const RenderOptions& options)
    : m_file(file), m_layers(layers), m_zones(zones), m_options(options), m_desk(layers, zones) {}

bool Renderer::readEvents(std::string& error) {
    const MidiFileClock clock(m_file, m_options.tempo ? m_options.tempo : DEFAULT_TEMPO);
    if (clock.ppq(endTick(m_file)) > RenderDesk::MAX_PPQ - 2 * LONGEST_TAIL) {
        error = "lasts longer than the desk can count";
        return false;
    }
    m_endPpq = static_cast<std::int32_t>(clock.ppq(endTick(m_file)));
    for (const MidiFileMergedEvent& merged : mergedEvents(m_file))
        if (merged.event->isChannelEvent())
            addEvent(*merged.event, static_cast<std::int32_t>(clock.ppq(merged.event->tick)));
    m_counts.read = m_events.size();
    endOpenNotes();
    return true;
}

void Renderer::addEvent(const MidiFileEvent& event, std::int32_t ppq) {
    auto status = static_cast<MidiMessage::MessageType>(event.status);
    // Many files end notes this way.
    if (status == MidiMessage::NoteOn && event.d2 == 0)
        status = MidiMessage::NoteOff;
    const bool entersLayers = m_options.through.test(event.channel);
    const char channel = entersLayers ? MirelMidiMessage::DEFAULT_CHANNEL : static_cast<char>(event.channel);
    const int zone = !entersLayers ? -1 : m_options.zoneIsChannel ? event.channel : m_options.zone;
    const MirelMidiMessage message(status, static_cast<char>(event.d1), static_cast<char>(event.d2),
                                   {.channel = channel, .zone = static_cast<char>(zone)});
    if (entersLayers && !isTaken(message))
        ++m_counts.notTaken;
    m_events.push_back({ppq, message});
}

// Ends the notes that the file leaves sounding.
void Renderer::endOpenNotes() {
    using Key = std::tuple<bool, char, char, char>;  // Default channel, channel, zone, note.
    std::map<Key, std::pair<int, MirelMidiMessage>> open;
    for (const InputEvent& event : m_events) {
        const MirelMidiMessage& message = event.message;
        if (!message.isNote())
            continue;
        auto& [count, last] =
            open[{message.isDefaultChannel(), message.getChannel(), message.getZone(), message.getD1()}];
        count = message.isNoteOn() ? count + 1 : std::max(count - 1, 0);
        last = message;
    }
    for (auto& [key, note] : open) {
        auto& [count, off] = note;
        off.setToNoteOff();
        m_counts.endedForFile += static_cast<std::size_t>(count);
        for (; count > 0; --count)
            m_events.push_back({m_endPpq, off});
    }
}

bool Renderer::isTaken(const MirelMidiMessage& message) const {
    char note = message.getD1();
    for (const auto& [id, zone] : m_zones)
        if (id == message.getZone())
            note = static_cast<char>(foldIntoNoteRange(note + zone.transpose));
    return message.isNoteOff() || std::any_of(m_layers.begin(), m_layers.end(), [&](const Layers::Layer& layer) {
               return !layer.mute && (message.isNoteOn() ? layer.acceptsNote(note, message.getD2(), message.getZone())
                                                         : layer.acceptsZone(message.getZone()));
           });
}

std::int32_t Renderer::slicePpq() const {
    const int tempo = m_options.tempo ? m_options.tempo : DEFAULT_TEMPO;
    const double ppq = m_options.sliceMilliseconds * tempo * MidiFileClock::PPQ / 60000.0;
    return std::max<std::int32_t>(1, static_cast<std::int32_t>(std::lround(ppq)));
}

bool Renderer::play(std::string& error) {
    if (!readEvents(error))
        return false;
    const std::int32_t step = slicePpq();
    auto next = m_events.begin();
    std::int32_t ppq = 0;
    while (true) {
        const bool isPlaying = m_desk.isArpeggioPlaying();
        if (next == m_events.end() && ppq > m_endPpq && !isPlaying)
            break;
        if (ppq > m_endPpq + LONGEST_TAIL) {
            m_counts.arpeggioCutOff = true;
            break;
        }
        if (m_desk.getPlayed().size() > MIDI_FILE_MAX_EVENTS) {
            error = "makes the layers play more than " + std::to_string(MIDI_FILE_MAX_EVENTS) + " events";
            return false;
        }
        // Skip silence.
        if (!isPlaying)
            ppq = std::max(ppq, next == m_events.end() ? m_endPpq : next->ppq);
        const std::int32_t ahead = ppq + LOOK_AHEAD;
        for (; next != m_events.end() && next->ppq < ahead; ++next)
            m_desk.post(next->message, next->ppq);
        for (; ppq < ahead; ppq += step)
            m_desk.playSlice(ppq, ppq + step);
    }
    m_endPpq = std::max(m_endPpq, ppq);
    m_desk.endNotes(m_endPpq);
    m_counts.played = m_desk.getPlayed().size();
    return true;
}

std::string Renderer::content() const {
    MidiFileWriter writer;
    if (m_options.tempo) {
        writer.add(MidiFileWriter::CONDUCTOR,
                   makeTempo(0, MICROSECONDS_PER_MINUTE / static_cast<std::uint32_t>(m_options.tempo)));
    } else {
        for (const MidiFileTempo& tempo : MidiFileClock(m_file).ppqTempi())
            writer.add(MidiFileWriter::CONDUCTOR, makeTempo(tempo.tick, tempo.microsecondsPerQuarter));
    }
    const MidiFileClock clock(m_file, m_options.tempo ? m_options.tempo : DEFAULT_TEMPO);
    for (const MidiFileTimeSignature& signature : m_file.timeSignatures)
        writer.add(MidiFileWriter::CONDUCTOR,
                   makeTimeSignature(clock.ppq(signature.tick), static_cast<std::uint8_t>(signature.numerator),
                                     static_cast<std::uint8_t>(signature.denominatorPower)));

    std::array<std::size_t, RenderDesk::OUTPUTS> trackOfOutput{};
    for (const RenderDesk::PlayedEvent& played : m_desk.getPlayed()) {
        std::size_t& track = trackOfOutput[static_cast<unsigned char>(played.output)];
        if (track == MidiFileWriter::CONDUCTOR)
            track = writer.addTrack("Output " + std::to_string(played.output + 1));
        MidiFileEvent event;
        event.tick = played.ppq;
        event.status = static_cast<std::uint8_t>(played.message.getStatus());
        event.channel = static_cast<std::uint8_t>(played.message.getChannel());
        event.d1 = static_cast<std::uint8_t>(played.message.getD1());
        event.d2 = static_cast<std::uint8_t>(played.message.getD2());
        writer.add(track, event);
    }
    return writer.content(MidiFileWriter::Layout::TRACKS).value_or(std::string());
}

}
