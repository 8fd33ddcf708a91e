#pragma once

#include "Backend/midi/MidiPort.h"
#include "Backend/midi/MirelMidiMessage.h"
#include "Backend/midi/Zone.h"
#include "Platform/MessageThread.h"

#include <vector>

namespace Backend::Layers {
class LayerList;
}

namespace Backend::Zones {
class ZoneMap;
}

namespace Backend::MidiEngine {

class MidiEngine;

// The engine's front door. Any thread can post requests; they are carried out one at a time on the engine's own thread,
// each under the engine's lock. A post never fails and loses nothing, but blocks while the queue is full or the thread
// has not started. Requests from one thread are carried out in the order in which it posted them.
class MidiEngineMessageManager {
public:
    explicit MidiEngineMessageManager(MidiEngine& midiEngine);

    // The thread must have been stopped.
    ~MidiEngineMessageManager();

    MidiEngineMessageManager(const MidiEngineMessageManager&) = delete;
    MidiEngineMessageManager& operator=(const MidiEngineMessageManager&) = delete;

    // [backend]
    void start();

    // [backend] Returns when the thread has ended. What is posted after this call is dropped; a post after the end
    // waits for another start.
    void stop();

    // [any] Queues an event for the next time slice, or for its own time if it has one.
    void postPlayMidi(const MirelMidiMessage& message);

    // [any] The same for an event known to have neither a control nor a time, which need not be checked.
    void postPlayMidiViaParam(const MirelMidiMessage& message);

    // [any] The ports, in the order of their indices.
    void postSetMidiInputPorts(const std::vector<MidiInputPort>& ports);
    void postSetMidiOutputPorts(const std::vector<MidiOutputPort>& ports);

    // [any] Passed on to the host.
    void postEnableMidiInput(int port, bool enable);
    void postEnableMidiOutput(int port, bool enable);

    // [any] -1 for none; only the low byte is kept.
    void postSetDefaultMidiOutput(int output);

    // [any] Replaces all layers, after ending all sounding notes, which takes until the next time slice.
    void postSetLayerList(const Layers::LayerList& layers);

    // [any] Replaces all zones. Keys that are down end the notes they started only if no zone had transposed them.
    void postSetZoneMap(const Zones::ZoneMap& zones);

    // [any] Changes the transposition of one zone; sounding notes are not affected.
    void postSetZone(const Zones::Zone& zone);

    // [any] Beats per minute, passed on to the host as it is.
    void postSetTempo(int bpm);

    // [any] An input, or -1 for the internal clock; passed on to the host. Only the low byte is kept.
    void postSetTempoSource(char input);

    // [any] Whether events from MIDI inputs reach the outputs.
    void postSetMidiThru(bool midiThru);

    // [any; not under the engine's lock, not the player's thread] Straight to the engine, bypassing the queue.
    void sendReset();
    void sendHardReset();

    // [any]
    bool currentThreadIsManagerThread() const;

    // [any other thread] Returns when all requests posted so far have been carried out.
    void waitUntilIdle() { m_thread.waitUntilIdle(); }

    // [any] Whether there is nothing to do at the moment.
    bool isIdle() const { return m_thread.isIdle(); }

    // [engine] Carries out one request. Unknown numbers are ignored.
    void handleMessage(const MSG& message);

private:
    void run();
    template <class Row, class... Values>
    void post(Row row, const Values&... values);
    void postPlayMidiViaAlloc(const MirelMidiMessage& message);

    void handlePlayMidiViaParam(const MirelMidiMessage& message);
    void handlePlayMidiViaAlloc(const MirelMidiMessage& message);
    void handleSetMidiInputPorts(std::vector<MidiInputPort> ports);
    void handleSetMidiOutputPorts(std::vector<MidiOutputPort> ports);
    void handleEnableMidiInput(int port, bool enable);
    void handleEnableMidiOutput(int port, bool enable);
    void handleSetDefaultMidiOutput(int output);
    void handleSetLayerList(const Layers::LayerList& layers);
    void handleSetZoneMap(const Zones::ZoneMap& zones);
    void handleSetZone(const Zones::Zone& zone);
    void handleSetTempo(int bpm);
    void handleSetTempoSource(char input);
    void handleSetMidiThru(bool midiThru);

    MidiEngine& m_midiEngine;
    Platform::MessageThread m_thread;
};

}
