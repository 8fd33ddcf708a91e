// The resets of the engine.
#include "Backend/midi/engine/MidiEngine.h"

namespace Backend::MidiEngine {

namespace {

constexpr char RELEASE_VELOCITY = 100;
constexpr char INTERNAL_CLOCK = -1;

}

void MidiEngine::reset() {
    m_noteCounts.takeAll([this](char output, char channel, char note) {
        playMidiInternal({MidiMessage::NoteOff, note, RELEASE_VELOCITY, {.output = output, .channel = channel}}, false);
    });
    m_noteVelocities.clear();
    for (PlayingLayer& layer : m_layers)
        layer.reset();
    m_startTime = -1;
}

void MidiEngine::hardReset() {
    reset();
    for (char channel = 0; channel < static_cast<char>(NoteCounters::CHANNELS); ++channel) {
        playMidiInternal(MirelMidiMessage::createAllSoundOffCC(m_defaultMidiOutput, channel), false);
        playMidiInternal(MirelMidiMessage::createAllControllersOffCC(m_defaultMidiOutput, channel), false);
    }
    playMidiInternal(MirelMidiMessage::createSystemReset(m_defaultMidiOutput), false);
}

void MidiEngine::sendReset() {
    ++m_resetCallers;
    sendResetOfKind(ResetKind::SOFT);
    --m_resetCallers;
}

void MidiEngine::sendHardReset() {
    ++m_resetCallers;
    sendResetOfKind(ResetKind::HARD);
    --m_resetCallers;
}

void MidiEngine::sendResetOfKind(ResetKind kind) {
    const std::lock_guard<std::mutex> oneSender(m_resetSenders);
    if (!m_midiPlayerRunning) {
        CriticalSectionLock lock(m_criticalSection);
        if (!m_midiPlayerRunning) {
            kind == ResetKind::HARD ? hardReset() : reset();
            return;
        }
    }
    // A silent external clock would produce no slices, and this would wait endlessly.
    const char tempoSource = getTempoSource();
    setTempoSource(INTERNAL_CLOCK);
    if (kind == ResetKind::HARD) {
        m_isSliceAwaited = true;
        m_hardResetRequested = true;
        m_hardResetEvent.wait();
    } else {
        {
            CriticalSectionLock lock(m_criticalSection);
            postPlayMidi(MirelMidiMessage::createMirelReset());
            m_isSliceAwaited = true;
        }
        m_resetEvent.wait();
    }
    setTempoSource(tempoSource);
}

}
