#include "Host/common/desk/PortPlayer.h"

#include "Platform/MessageThread.h"
#include "Platform/MonotonicClock.h"
#include "Platform/RaisedPriority.h"
#include "Platform/ThreadName.h"

#include <algorithm>
#include <utility>

namespace Host {

using Backend::MidiEngine::MidiMessage;
using Backend::MidiEngine::MirelMidiMessage;

namespace {

constexpr std::uint32_t BITS_BEYOND_DATA = 0x808000;

// Half a sysex is worse than none: the receiver would take everything after it for the rest.
bool isSysexPart(MidiMessage::MessageType status) {
    return status == MidiMessage::SystemExclusive || status == MidiMessage::EndOfSysex;
}

}

PortPlayer::PortPlayer(MidiPorts& ports)
    : m_ports(ports),
      m_clock(Platform::monotonicMicroseconds()),
      m_sliceMicroseconds(Platform::monotonicMicroseconds()) {
    m_ports.recorder().setTempo(m_tempo, m_sliceMicroseconds);
}

PortPlayer::~PortPlayer() {
    stop();
}

void PortPlayer::start(PlayTimeSlice playTimeSlice) {
    if (m_thread.joinable())
        return;
    m_isStopping = false;
    m_hasEnded = false;
    m_failure = nullptr;
    m_thread = std::thread([this, play = std::move(playTimeSlice)] { run(play); });
}

void PortPlayer::stop() {
    if (!m_thread.joinable())
        return;
    m_isStopping = true;
    m_wait.wake();
    m_thread.join();
}

void PortPlayer::run(const PlayTimeSlice& playTimeSlice) {
    Platform::nameCurrentThread("player");
    m_threadId = Platform::currentThreadId();
    try {
        const Platform::RaisedPriority priority;
        playUntilStopped(playTimeSlice);
    } catch (...) {
        m_failure = std::current_exception();
    }
    m_ports.endNotes();
    m_hasEnded = true;
}

void PortPlayer::playUntilStopped(const PlayTimeSlice& playTimeSlice) {
    const std::int64_t start = Platform::monotonicMicroseconds();
    std::int64_t now = start;
    while (!m_isStopping) {
        playSlice(now, playTimeSlice);
        // Wait for the next whole slice still to come; it includes whatever was missed.
        now = Platform::monotonicMicroseconds();
        m_wait.waitUntil(now - (now - start) % SLICE_MICROSECONDS + SLICE_MICROSECONDS);
        now = Platform::monotonicMicroseconds();
    }
}

void PortPlayer::playSlice(std::int64_t microseconds, const PlayTimeSlice& playTimeSlice) {
    ClockMessage message;
    while (m_ports.clockInput().pop(message))
        m_clock.take(message);
    m_clock.setTempo(m_tempo);
    m_clock.setExternal(m_tempoSource >= 0);
    if (m_isPulsed.exchange(false))
        m_clock.nudge();
    m_sliceMicroseconds = microseconds;
    const DeskClock::Slice slice = m_clock.advance(microseconds);
    playTimeSlice(slice.from, slice.to);
}

void PortPlayer::playMidi(const MirelMidiMessage& message) {
    const MidiMessage& event = message.getMidiMessage();
    const std::uint32_t bytes = event.getMidiOutShortMsg();
    // Only whole messages that every port understands.
    if (event.isValid() && !isSysexPart(event.getStatus()) && (bytes & BITS_BEYOND_DATA) == 0)
        m_ports.play(message.getOutput(), bytes, m_sliceMicroseconds);
}

void PortPlayer::pulseSequencer() {
    m_isPulsed = true;
    m_wait.wake();
}

void PortPlayer::setTempo(int bpm) {
    if (bpm < DeskClock::LOWEST_TEMPO || bpm > DeskClock::HIGHEST_TEMPO)
        return;
    m_tempo = bpm;
    m_ports.recorder().setTempo(bpm, Platform::monotonicMicroseconds());
}

void PortPlayer::setTempoSource(char input) {
    // During a reset the source is internal for a moment; the last input stays connected meanwhile.
    m_ports.setClockInput(input);
    m_tempoSource = input;
}

}
