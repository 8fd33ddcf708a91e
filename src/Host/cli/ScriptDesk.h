#pragma once

#include "Backend/core/MirelIF.h"
#include "Backend/midi/LayerList.h"
#include "Backend/midi/MidiEngine.h"
#include "Backend/midi/SequencePresetManager.h"
#include "Host/cli/ScriptArguments.h"
#include "Host/cli/ScriptPlayer.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Host::Cli {

// The desk that a script drives: a real engine with its thread, no window, no ports and no clock. Each operation
// returns when all that it set off has been done.
class ScriptDesk : private Backend::MirelIF {
public:
    // sequences is the folder of the sequence presets that layers may name.
    ScriptDesk(ScriptPlayer::Options options, const std::string& sequences);
    ~ScriptDesk() override;

    void setInputs(int count);

    // off: the outputs that are not enabled.
    void setOutputs(int count, const std::vector<std::int32_t>& off);

    void setDefaultOutput(int output);
    void setThru(bool thru);
    void setLayers(Backend::Layers::LayerList layers);
    void setZones(const Backend::Zones::ZoneMap& zones);
    void setZone(char id, char transpose);
    void postEvent(const Backend::MidiEngine::MirelMidiMessage& event);

    // Exactly these layers have solo; a number that is none of a layer's is ignored.
    void setSolo(const std::vector<std::int32_t>& layers);

    // One time slice, in ppq.
    void playSlice(std::int32_t from, std::int32_t to);

    void reset();
    void hardReset();

    const Backend::SequenceManagement::SequencePresetManager& getSequencePresets() const { return m_sequencePresets; }

    std::string takeOutput() { return m_player.takeOutput(); }

private:
    HWND getGuiWindowHandle() override { return m_player.getWindowHandle(); }
    Backend::Controls::ControlMessageManager& getControlMessageManager() override { return m_player; }

    Backend::MidiEngine::MidiEngineMessageManager& manager() { return m_engine->getMessageManager(); }

    // Plays empty slices where the clock stands until isDone; what waits for the player's thread needs them.
    template <typename Condition>
    void playUntil(Condition isDone);

    template <typename Request>
    void runReset(Request request);

    void sendLayers();

    ScriptPlayer m_player;
    Backend::SequenceManagement::SequencePresetManager m_sequencePresets;
    std::unique_ptr<Backend::MidiEngine::MidiEngine> m_engine;  // On the heap for its size.
    Backend::Layers::LayerList m_layers;
    std::int32_t m_clock = 0;
    bool m_hasPlayed = false;
};

}
