#pragma once

#include "Backend/core/MirelIF.h"
#include "Backend/midi/layers/LayerList.h"
#include "Host/cli/script/BackendCalls.h"
#include "Host/cli/script/ScriptPlayer.h"
#include "Host/common/desk/ObservedMirel.h"

#include <atomic>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Host::Cli {

// The desk that a script drives, without ports and without a clock. At first it is an engine alone; start() makes the
// whole desk of it. Each operation returns when all that it set off has been done.
class ScriptDesk {
public:
    explicit ScriptDesk(ScriptPlayer::Options options);
    ~ScriptDesk();
    ScriptDesk(const ScriptDesk&) = delete;
    ScriptDesk& operator=(const ScriptDesk&) = delete;

    // Starts the whole desk with its built-in defaults, if it has not been started. The ports and the clock stay.
    void start();

    void setInputs(int count);

    // off: the outputs that are not enabled.
    void setOutputs(int count, const std::vector<std::int32_t>& off);

    void setDefaultOutput(int output);
    void setThru(bool thru);
    void setLayers(const Backend::Layers::LayerList& layers);
    void setZones(const Backend::Zones::ZoneMap& zones);
    void setZone(char id, char transpose);
    void postEvent(const Backend::MidiEngine::MirelMidiMessage& event);

    // Exactly these layers have solo; a number that is none of a layer's is ignored.
    void setSolo(const std::vector<std::int32_t>& layers);

    // One time slice, in ppq.
    void playSlice(std::int32_t from, std::int32_t to);

    void reset();
    void hardReset();

    // Starts the desk and posts something to it.
    void post(const std::function<void(Backend::MirelIF&)>& request);

    // Starts the desk and runs something on the backend thread.
    void run(std::function<void(Backend::Mirel&)> action);

    // Starts the desk and adds lines to the output that are made on the backend thread.
    void print(const std::function<std::string(Backend::Mirel&)>& describe);

    // Adds lines to the output.
    void tell(const std::string& lines) { m_player.tell(lines); }

    // The text of the log.
    std::string getLog();

    const Backend::SequenceManagement::SequencePresetManager& getSequencePresets() const {
        return m_mirel->getSequencePresets();
    }

    std::string takeOutput() { return m_player.takeOutput(); }

private:
    [[nodiscard]] std::unique_ptr<ObservedMirel> createMirel();

    // During a slice, an event that the controls hear of after it.
    void keepUpdate(const Backend::MidiEngine::MirelMidiMessage& message);

    Backend::MidiEngine::MidiEngineMessageManager& engine() { return m_mirel->getMidiEngineMessageManager(); }
    bool isResting();
    void waitUntilResting();

    // A slice alone. What the controls hear of they hear after it, so that a script always finds the same order.
    void playTimeSlice(std::int32_t from, std::int32_t to);

    // As many as the controls take.
    void postUpdates();

    bool isSliceNeeded(int ownCallers);

    // Plays empty slices where the clock stands until isDone; what waits for the player's thread needs them.
    // ownCallers: how many threads of this object wait for a reset.
    template <typename Condition>
    void playUntil(int ownCallers, Condition isDone);

    void runReset(const std::function<void()>& request);

    ScriptPlayer m_player;
    std::vector<Backend::MidiEngine::MidiInputPort> m_inputs;
    std::vector<Backend::MidiEngine::MidiOutputPort> m_outputs;
    std::unique_ptr<ObservedMirel> m_mirel;
    std::unique_ptr<BackendCalls> m_calls;                        // Of the desk that was started.
    Backend::Layers::LayerList m_layers;                          // Of the engine alone.
    std::deque<Backend::MidiEngine::MirelMidiMessage> m_updates;  // That the controls have not heard of yet.
    std::atomic<bool> m_isStarted = false;
    std::int32_t m_clock = 0;
};

}
