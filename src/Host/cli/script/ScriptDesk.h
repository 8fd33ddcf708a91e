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

// The desk that a script drives, without ports or a clock. At first it is only an engine; start() turns it into a whole
// desk. Each operation returns when everything it set off is done.
class ScriptDesk {
public:
    explicit ScriptDesk(ScriptPlayer::Options options);
    ~ScriptDesk();
    ScriptDesk(const ScriptDesk&) = delete;
    ScriptDesk& operator=(const ScriptDesk&) = delete;

    // Starts the whole desk with its built-in defaults, unless it is already started. The ports and the clock stay.
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

    // Sets solo on exactly these layers; a number without a layer is ignored.
    void setSolo(const std::vector<std::int32_t>& layers);

    // One time slice, in ppq.
    void playSlice(std::int32_t from, std::int32_t to);

    void reset();
    void hardReset();

    // Starts the desk and posts something to it.
    void post(const std::function<void(Backend::MirelIF&)>& request);

    // Starts the desk and runs something on the backend thread.
    void run(std::function<void(Backend::Mirel&)> action);

    // Starts the desk and appends lines to the output, which describe makes on the backend thread.
    void print(const std::function<std::string(Backend::Mirel&)>& describe);

    // Appends lines to the output.
    void tell(const std::string& lines) { m_player.tell(lines); }

    // The text of the log.
    std::string getLog();

    const Backend::SequenceManagement::SequencePresetManager& getSequencePresets() const {
        return m_mirel->getSequencePresets();
    }

    std::string takeOutput() { return m_player.takeOutput(); }

private:
    [[nodiscard]] std::unique_ptr<ObservedMirel> createMirel();

    // An event during a slice that the controls get after it.
    void keepUpdate(const Backend::MidiEngine::MirelMidiMessage& message);

    Backend::MidiEngine::MidiEngineMessageManager& engine() { return m_mirel->getMidiEngineMessageManager(); }
    bool isResting();
    void waitUntilResting();

    // Plays just a slice. Controls get their events after it, so that scripts always see the same order.
    void playTimeSlice(std::int32_t from, std::int32_t to);

    // Passes on as many as the controls take.
    void postUpdates();

    bool isSliceNeeded(int ownCallers);

    // Plays empty slices without moving the clock until isDone, for those who wait for the player's thread. ownCallers:
    // how many threads of this object wait for a reset.
    template <typename Condition>
    void playUntil(int ownCallers, Condition isDone);

    void runReset(const std::function<void()>& request);

    ScriptPlayer m_player;
    std::vector<Backend::MidiEngine::MidiInputPort> m_inputs;
    std::vector<Backend::MidiEngine::MidiOutputPort> m_outputs;
    std::unique_ptr<ObservedMirel> m_mirel;
    std::unique_ptr<BackendCalls> m_calls;                        // While a whole desk runs.
    Backend::Layers::LayerList m_layers;                          // While there is only the engine.
    std::deque<Backend::MidiEngine::MirelMidiMessage> m_updates;  // That the controls have not heard of yet.
    std::atomic<bool> m_isStarted = false;
    std::int32_t m_clock = 0;
};

}
