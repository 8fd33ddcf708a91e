#pragma once

#include "Backend/midi/engine/MidiEngine.h"
#include "Backend/midi/layers/LayerList.h"
#include "Backend/midi/layers/ZoneMap.h"
#include "Host/common/desk/ObservedMirel.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace Host::Cli {

// A desk that plays as fast as it can and records what it played. Its time is in ppq from 0.
class RenderDesk : private Backend::MidiEngine::MidiPlayer {
public:
    struct PlayedEvent {
        std::int32_t ppq;
        char output;
        Backend::MidiEngine::MidiMessage message;
    };

    // As many as routing can name.
    static constexpr int OUTPUTS = 128;

    // The last time that can be played.
    static constexpr std::int32_t MAX_PPQ = 2000000000;

    RenderDesk(const Backend::Layers::LayerList& layers, const Backend::Zones::ZoneMap& zones);
    ~RenderDesk() override;

    // Queues an event for its time. Queued events reach the engine before the next slice.
    void post(const Backend::MidiEngine::MirelMidiMessage& event, std::int32_t ppq);

    // Plays the slice from one time up to another.
    void playSlice(std::int32_t from, std::int32_t to);

    // Whether an arpeggio is playing.
    bool isArpeggioPlaying();

    // Ends all sounding notes at this time.
    void endNotes(std::int32_t ppq);

    const std::vector<PlayedEvent>& getPlayed() const { return m_played; }

private:
    void playMidi(const Backend::MidiEngine::MirelMidiMessage& message) override;
    void enableMidiInput(int, bool) override {}
    void enableMidiOutput(int, bool) override {}
    DWORD getThreadId() override { return m_threadId; }
    void pulseSequencer() override {}
    void setTempo(int) override {}
    void setTempoSource(char) override {}
    char getTempoSource() override { return -1; }

    const std::unique_ptr<Host::ObservedMirel> m_mirel;  // Never started; only its engine is.
    Backend::MidiEngine::MidiEngine& m_engine;
    const DWORD m_threadId;
    std::int32_t m_sliceFrom = 0;
    std::vector<PlayedEvent> m_played;
};

}
