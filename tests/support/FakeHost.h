#pragma once

#include "Backend/midi/MidiPlayer.h"
#include "Host/common/desk/ObservedMirel.h"
#include "Platform/MessageThread.h"

#include <atomic>
#include <memory>
#include <string>
#include <vector>

namespace TestSupport {

// A host, a backend without a window, and controls in one; they record what the engine reports to them.
class FakeHost : public Backend::MidiEngine::MidiPlayer {
public:
    // Under the engine's lock.
    void playMidi(const Backend::MidiEngine::MirelMidiMessage& message) override { played.push_back(message); }
    void enableMidiInput(int port, bool enable) override { tell("input", port, enable); }
    void enableMidiOutput(int port, bool enable) override { tell("output", port, enable); }
    DWORD getThreadId() override { return threadId; }
    void pulseSequencer() override { calls.push_back("pulse"); }
    void setTempo(int bpm) override { tell("tempo", bpm); }
    void setTempoSource(char input) override {
        tempoSource = input;
        ++tempoSourceChanges;
        if (input < 0)
            ++internalClockRequests;
    }
    char getTempoSource() override { return tempoSource; }

    // A backend that is not started, for an engine of the test's own.
    Backend::MirelIF& mirel() { return *m_mirel; }
    void setWindow(HWND window) { m_mirel->setGuiWindowHandle(window); }

    std::vector<Backend::MidiEngine::MirelMidiMessage> played;
    std::vector<Backend::MidiEngine::MirelMidiMessage> updates;
    std::vector<std::string> calls;  // Of the engine's thread.
    std::atomic<char> tempoSource = -1;
    std::atomic<int> tempoSourceChanges = 0;
    std::atomic<int> internalClockRequests = 0;
    std::atomic<DWORD> threadId = Platform::currentThreadId();

private:
    bool hear(const Backend::MidiEngine::MirelMidiMessage& message) {
        updates.push_back(message);
        return false;
    }

    void tell(const std::string& name, int value) { calls.push_back(name + " " + std::to_string(value)); }
    void tell(const std::string& name, int value, bool flag) {
        calls.push_back(name + " " + std::to_string(value) + (flag ? " on" : " off"));
    }

    const std::unique_ptr<Backend::Mirel> m_mirel = std::make_unique<Host::ObservedMirel>(
        "Test", *this, [this](const Backend::MidiEngine::MirelMidiMessage& message) { return hear(message); });
};

}
