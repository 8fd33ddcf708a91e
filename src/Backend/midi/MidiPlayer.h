#pragma once

#include "Backend/midi/MirelMidiMessage.h"
#include "Platform/WindowTypes.h"

namespace Backend::MidiEngine {

// The host, as the engine sees it: MIDI outputs, a clock and the thread that runs the time slices.
class MidiPlayer {
public:
    virtual ~MidiPlayer() = default;

    // [player, rt; before the first time slice whoever asked for a reset] Sends one event now to message.getOutput().
    // Called under the engine's lock, so it must not call anything that waits for that lock.
    virtual void playMidi(const MirelMidiMessage& message) = 0;

    // [engine] Opens or closes a port, by index from 0.
    virtual void enableMidiInput(int port, bool enable) = 0;
    virtual void enableMidiOutput(int port, bool enable) = 0;

    // [any] The id of the thread that runs the time slices.
    virtual DWORD getThreadId() = 0;

    // [any] Requests a time slice soon.
    virtual void pulseSequencer() = 0;

    // [engine] Beats per minute.
    virtual void setTempo(int bpm) = 0;

    // [engine, or the caller of a reset] The input whose timing ticks drive the clock; -1 is the internal clock.
    virtual void setTempoSource(char input) = 0;

    // [caller of a reset]
    virtual char getTempoSource() = 0;
};

}
