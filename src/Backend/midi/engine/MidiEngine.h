#pragma once

#include "Backend/midi/ArpeggioTarget.h"
#include "Backend/midi/MessageList.h"
#include "Backend/midi/MessageRing.h"
#include "Backend/midi/MidiPlayer.h"
#include "Backend/midi/MidiPort.h"
#include "Backend/midi/MirelMidiMessage.h"
#include "Backend/midi/engine/MidiEngineMessageManager.h"
#include "Backend/midi/engine/NoteCounters.h"
#include "Backend/midi/engine/NoteVelocities.h"
#include "Backend/midi/engine/PlayingLayer.h"
#include "Backend/midi/engine/PlayingZone.h"
#include "Platform/AutoResetEvent.h"
#include "Platform/CriticalSection.h"

#include <array>
#include <atomic>
#include <memory>
#include <mutex>
#include <vector>

namespace Backend {
class MirelIF;
}

namespace Backend::Layers {
class LayerList;
}

namespace Backend::Zones {
class ZoneMap;
}

namespace Backend::MidiEngine {

class PassingEvents;

// Takes events in, runs them through zones and layers in time slices, and hands the result to the host.
//
// The host's player thread calls playTimeSlice; everything musical happens there, under the engine's one lock. Everyone
// else reaches the engine through its message manager, whose thread takes the same lock for one request at a time.
// Operations tagged [locked] are for code that runs under the lock.
class MidiEngine : public ArpeggioTarget {
public:
    // A slice of this many ppq or more plays nothing. This bounds the cost of a stall or a jump of the tempo.
    static constexpr int MAX_TIME_SLICE = 5000;

    // Events beyond this many waiting ones are dropped; resets never are.
    static constexpr std::size_t MAX_PENDING_MESSAGES = 1 << 20;

    // The most events that wait to be passed on to the controls.
    static constexpr std::size_t MAX_WAITING_UPDATES = 1 << 16;

    // Both must outlive the engine.
    MidiEngine(MirelIF& mirel, MidiPlayer& midiPlayer);

    // end() must have stopped the thread.
    ~MidiEngine() override;

    MidiEngine(const MidiEngine&) = delete;
    MidiEngine& operator=(const MidiEngine&) = delete;

    // [host] Sets the receiver of passing events, which must outlive the last slice. Call it before the first slice;
    // without a receiver they are not reported.
    void setPassingEvents(PassingEvents& receiver) { m_passingEvents = &receiver; }

    // [backend] Starts the engine's thread.
    void initialize(int defaultOutput, bool midiThru);

    // [backend] Stops it. Later requests wait until it starts again.
    void end();

    // [player, rt] Plays what is due from one time up to, but not including, another, in ppq. A window that runs
    // backwards plays a few ticks at each end; one of 5000 ppq or more plays nothing.
    void playTimeSlice(std::int32_t from, std::int32_t to);

    // [any, rt] The ppq time of a host clock at a tempo in beats per minute. It is far above 0, because negative times
    // mean none. Negative times give 0, and times beyond 32 bits the last possible one.
    static std::int32_t milliseconds2Ppq(double milliseconds, int tempo);

    MidiEngineMessageManager& getMessageManager() { return m_messageManager; }
    CriticalSection& getCriticalSection() { return m_criticalSection; }

    // [locked] The output for events and layers that name none; -1 for none. Only the low byte is kept.
    int getDefaultMidiOutput() const { return m_defaultMidiOutput; }
    char getDefaultMidiOutputByte() const { return m_defaultMidiOutput; }
    void setDefaultMidiOutput(int output);

    // [locked] Whether events from MIDI inputs reach the outputs.
    void setMidiThru(bool midiThru) { m_midiThru = midiThru; }

    // [locked]
    void setMidiInputPorts(std::vector<MidiInputPort> ports) { m_midiInputPorts = std::move(ports); }
    void setMidiOutputPorts(std::vector<MidiOutputPort> ports);

    // [locked, rt] False for an output that does not exist.
    [[nodiscard]] bool isOutputEnabled(char output) const {
        return m_enabledOutputs[static_cast<unsigned char>(output)];
    }

    // [locked] Takes over a new set of layers or zones. What the old ones held is forgotten, so reset first.
    void setLayerList(const Layers::LayerList& layers);
    void setZoneMap(const Zones::ZoneMap& zones);

    // [locked] Changes the transposition of one zone. A zone that the engine does not have is ignored.
    void setZone(const Zones::Zone& zone);

    // [any] Straight to the host, without the lock.
    void enableMidiInput(int port, bool enable) { m_midiPlayer.enableMidiInput(port, enable); }
    void enableMidiOutput(int port, bool enable) { m_midiPlayer.enableMidiOutput(port, enable); }
    void pulseSequencer() { m_midiPlayer.pulseSequencer(); }
    void setTempo(int bpm) { m_midiPlayer.setTempo(bpm); }
    void setTempoSource(char input) { m_midiPlayer.setTempoSource(input); }
    char getTempoSource() { return m_midiPlayer.getTempoSource(); }

    // [any, rt] Whether this is the thread that runs the time slices; true on every thread until the first slice.
    bool isMidiPlayerThread() const;

    // [any; not locked] Ends all sounding notes and all playing arpeggios, and returns when that is done. It waits for
    // the next time slice, switching the host to its internal clock meanwhile; before the first slice it acts at once.
    void sendReset();

    // [any; not locked] Like sendReset, and then silences the default output.
    void sendHardReset();

    // [any, rt] Whether a reset is waiting for a slice, and how many threads are in a call that resets.
    bool isSliceAwaited() const { return m_isSliceAwaited; }
    int getResetCallers() const { return m_resetCallers; }

    // [locked] Queues an event for the next slice, and allocates what that slice may need for it.
    void postPlayMidi(const MirelMidiMessage& message);

    // [locked, rt] Reports an event that passed to the controls. While the backend can't take more, it waits for a
    // later slice; beyond MAX_WAITING_UPDATES the oldest are lost.
    void postUpdateControl(const MirelMidiMessage& message);

    // [locked, rt] The last stage of every event: counts notes, hands the event to the host and shows it. With
    // stackNotes a Note Off is held back while its note was started more often than it ended.
    void playMidiInternal(const MirelMidiMessage& message, bool stackNotes) override;

    // [locked, rt] The origin of the grid that all arpeggios share, in ppq; -1 while none plays. The first one sets it.
    std::int32_t getStartTime() const override { return m_startTime; }
    void setStartTime(std::int32_t ppq) override;

    // [locked, rt] Clears the origin if no arpeggio plays.
    void updateStartTime() override;

    // [any] Null while there is no window.
    HWND getGuiWindowHandle() const;

private:
    enum class ResetKind { SOFT, HARD };

    // The steps of a slice.
    void postWaitingUpdates();
    void drainPendingMessages(std::int32_t to);
    void carryOutResets();
    void walk(std::int64_t first, std::int64_t last, std::int32_t earliest);
    void keepUnplayedMessages();

    // Plays what is due at ppq, and returns when the next message is due. Messages below earliest are ignored.
    std::int64_t playDueMessages(std::int32_t ppq, std::int32_t earliest);
    std::int64_t playDueMessages(MessageList& messages, std::int32_t ppq, std::int32_t earliest);
    bool isAnyArpeggioHolding() const;
    void playArpeggios(std::int32_t ppq);

    // One event through zones and layers; may change it.
    void playMidi(MirelMidiMessage& message);
    void playPastLayers(MirelMidiMessage& message);
    void playThroughLayers(const MirelMidiMessage& message);

    void reset();
    void hardReset();
    void sendResetOfKind(ResetKind kind);

    MirelIF& m_mirel;
    MidiPlayer& m_midiPlayer;
    PassingEvents* m_passingEvents = nullptr;
    std::vector<MidiInputPort> m_midiInputPorts;
    std::vector<MidiOutputPort> m_midiOutputPorts;
    std::array<bool, 256> m_enabledOutputs{};  // By the byte of the index.
    char m_defaultMidiOutput = -1;
    MidiEngineMessageManager m_messageManager;
    CriticalSection m_criticalSection;

    std::vector<PlayingLayer> m_layers;
    std::vector<PlayingLayer*> m_audibleLayers;   // Layers with solo or, without any solo, layers that are not muted.
    std::vector<PlayingLayer*> m_arpeggioLayers;  // Layers with an arpeggio.
    bool m_anyVelocityRange = false;              // In any of m_layers, including muted ones.

    std::array<std::unique_ptr<PlayingZone>, 256> m_zones;  // By the id's byte.

    NoteCounters m_noteCounts;
    NoteVelocities m_noteVelocities;

    // All oldest first. Posted messages are pending until a slice takes them; those that a slice could not play yet are
    // timed, and come before those taken later.
    MessageList m_pendingMessages;
    MessageList m_takenMessages;
    std::int32_t m_takenFrom = 0;  // No taken message is due before this.
    MessageList m_timedMessages;

    MessageRing m_waitingUpdates{MAX_WAITING_UPDATES};

    std::int32_t m_startTime = -1;
    bool m_midiThru = false;

    std::mutex m_resetSenders;  // One sender at a time waits for the events below.
    std::atomic<bool> m_hardResetRequested = false;
    std::atomic<bool> m_isSliceAwaited = false;
    std::atomic<int> m_resetCallers = 0;
    Platform::AutoResetEvent m_resetEvent;
    Platform::AutoResetEvent m_hardResetEvent;
    std::atomic<bool> m_midiPlayerRunning = false;
};

}
