#pragma once

#include "Backend/midi/layers/LayerList.h"
#include "Backend/midi/layers/ZoneMap.h"
#include "Host/cli/render/RenderDesk.h"
#include "Host/cli/render/RenderOptions.h"
#include "Host/common/midifile/MidiFile.h"

#include <cstddef>
#include <string>
#include <vector>

namespace Host::Cli {

// How many events took which path.
struct RenderCounts {
    std::size_t read = 0;          // Channel events of the file.
    std::size_t played = 0;        // Events that went out.
    std::size_t notTaken = 0;      // Note-ons and other events that no layer takes.
    std::size_t endedForFile = 0;  // Notes that the file starts and never ends.
    bool arpeggioCutOff = false;   // An arpeggio would have gone on endlessly.
};

// Plays a MIDI file through the engine in the file's own musical time.
class Renderer {
public:
    // All must outlive the renderer.
    Renderer(const MidiFile& file, const Backend::Layers::LayerList& layers, const Backend::Zones::ZoneMap& zones,
             const RenderOptions& options);

    // Plays the whole file, and on until the last arpeggio has ended. False, with one line in error, if the file is too
    // long or makes the layers play more than a file can hold.
    bool play(std::string& error);

    // What was played, as a MIDI file with one track per output; empty if it can't be written as one.
    std::string content() const;

    const RenderCounts& getCounts() const { return m_counts; }

private:
    struct InputEvent {
        std::int32_t ppq;
        Backend::MidiEngine::MirelMidiMessage message;
    };

    [[nodiscard]] bool readEvents(std::string& error);
    void addEvent(const MidiFileEvent& event, std::int32_t ppq);
    void endOpenNotes();
    bool isTaken(const Backend::MidiEngine::MirelMidiMessage& message) const;
    std::int32_t slicePpq() const;

    const MidiFile& m_file;
    const Backend::Layers::LayerList& m_layers;
    const Backend::Zones::ZoneMap& m_zones;
    const RenderOptions& m_options;
    RenderDesk m_desk;
    std::vector<InputEvent> m_events;  // By time.
    std::int32_t m_endPpq = 0;         // The end of the file, then of what was played.
    RenderCounts m_counts;
};

}
