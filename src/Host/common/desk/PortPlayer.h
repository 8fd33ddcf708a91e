#pragma once

#include "Backend/midi/MidiPlayer.h"
#include "Host/common/clock/DeskClock.h"
#include "Host/common/ports/MidiPorts.h"
#include "Platform/PreciseWait.h"

#include <atomic>
#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <thread>

namespace Host {

// The host of a desk with real ports: its player thread plays a slice about every millisecond, and the outputs get what
// the desk plays in it.
//
// Slices are played even while an external clock is stopped, so that resets are carried out. When the thread ends,
// whether by stop() or because an exception escaped a slice, all sounding notes on the outputs are ended.
class PortPlayer : public Backend::MidiEngine::MidiPlayer {
public:
    static constexpr std::int64_t SLICE_MICROSECONDS = 1000;

    // The desk's operation for one time slice, in ppq.
    using PlayTimeSlice = std::function<void(std::int32_t from, std::int32_t to)>;

    // The ports must outlive the player.
    explicit PortPlayer(MidiPorts& ports);

    // Does what stop does.
    ~PortPlayer() override;
    PortPlayer(const PortPlayer&) = delete;
    PortPlayer& operator=(const PortPlayer&) = delete;

    // [main] Starts the player thread, unless there is one.
    void start(PlayTimeSlice playTimeSlice);

    // [main] Ends the thread after its current slice, then ends all sounding notes.
    void stop();

    // [any] Whether the thread has ended, by itself or by stop(). Also true before the start.
    bool hasEnded() const { return m_hasEnded; }

    // [main, after stop] The exception that escaped a slice and ended the thread; null if there was none.
    std::exception_ptr failure() const { return m_failure; }

    // [player, rt if the desk's slice is] Plays the slice up to this moment of the monotonic clock. The thread does
    // nothing else; tests call it with times of their own.
    void playSlice(std::int64_t microseconds, const PlayTimeSlice& playTimeSlice);

    // See MidiPlayer.
    void playMidi(const Backend::MidiEngine::MirelMidiMessage& message) override;
    void enableMidiInput(int port, bool enable) override { m_ports.enableInput(port, enable); }
    void enableMidiOutput(int port, bool enable) override { m_ports.enableOutput(port, enable); }
    DWORD getThreadId() override { return m_threadId; }
    void pulseSequencer() override;
    void setTempo(int bpm) override;
    void setTempoSource(char input) override;
    char getTempoSource() override { return m_tempoSource; }

private:
    void run(const PlayTimeSlice& playTimeSlice);
    void playUntilStopped(const PlayTimeSlice& playTimeSlice);

    MidiPorts& m_ports;
    DeskClock m_clock;
    Platform::PreciseWait m_wait;
    std::atomic<DWORD> m_threadId{0};
    std::atomic<int> m_tempo{DeskClock::DEFAULT_TEMPO};
    std::atomic<char> m_tempoSource{-1};
    std::atomic<bool> m_isPulsed{false};
    std::atomic<bool> m_isStopping{false};
    std::atomic<bool> m_hasEnded{true};
    std::atomic<std::int64_t> m_sliceMicroseconds;
    std::exception_ptr m_failure;
    std::thread m_thread;
};

}
