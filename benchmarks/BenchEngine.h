#pragma once

#include "Backend/midi/engine/MidiEngine.h"
#include "Backend/midi/layers/LayerList.h"
#include "Host/common/desk/ObservedMirel.h"

#include <memory>
#include <string>

namespace Benchmarks {

// An engine with one output whose host and controls ignore what they are given.
class BenchEngine : private Backend::MidiEngine::MidiPlayer {
public:
    explicit BenchEngine(const std::string& layersXml);
    ~BenchEngine() override;

    Backend::MidiEngine::MidiEngine& engine() { return m_engine; }

    // A note on the default routing.
    static Backend::MidiEngine::MirelMidiMessage makeNote(bool isNoteOn, int note, int velocity);

    // Posts a note on the default routing straight to the queue, as the engine's thread does.
    void post(bool isNoteOn, int note, int velocity);

    // Plays the next slice of this many ppq.
    void playSlice(std::int32_t ppq);

private:
    void playMidi(const Backend::MidiEngine::MirelMidiMessage&) override { ++m_played; }
    void enableMidiInput(int, bool) override {}
    void enableMidiOutput(int, bool) override {}
    DWORD getThreadId() override { return 0; }
    void pulseSequencer() override {}
    void setTempo(int) override {}
    void setTempoSource(char) override {}
    char getTempoSource() override { return -1; }

    const std::unique_ptr<Host::ObservedMirel> m_mirel;  // Never started; only its engine is.
    Backend::MidiEngine::MidiEngine& m_engine;
    std::int32_t m_clock = 50000000;
    std::int64_t m_played = 0;
};

// The text of a Layers element with this many equal layers.
std::string repeatLayer(const std::string& layer, int count);

}
