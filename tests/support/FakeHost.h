#pragma once

#include "Backend/core/MirelIF.h"
#include "Backend/input/ControlMessageManager.h"
#include "Backend/midi/MidiPlayer.h"
#include "Platform/MessageThread.h"

#include <atomic>
#include <string>
#include <vector>

namespace TestSupport {

// A host, a window-less backend and controls in one, which remember what the engine tells them.
class FakeHost : public Backend::MidiEngine::MidiPlayer,
                 public Backend::Controls::ControlMessageManager,
                 public Backend::MirelIF {
public:
    // Under the engine's lock.
    void playMidi(const Backend::MidiEngine::MirelMidiMessage& message) override { played.push_back(message); }
    void postUpdateControl(const Backend::MidiEngine::MirelMidiMessage& message) override {
        updates.push_back(message);
    }

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

    HWND getGuiWindowHandle() override { return window; }
    Backend::Controls::ControlMessageManager& getControlMessageManager() override { return *this; }

    std::vector<Backend::MidiEngine::MirelMidiMessage> played;
    std::vector<Backend::MidiEngine::MirelMidiMessage> updates;
    std::vector<std::string> calls;  // Of the engine's thread.
    std::atomic<char> tempoSource = -1;
    std::atomic<int> tempoSourceChanges = 0;
    std::atomic<int> internalClockRequests = 0;
    std::atomic<DWORD> threadId = Platform::currentThreadId();
    std::atomic<HWND> window = nullptr;

private:
    void tell(const std::string& name, int value) { calls.push_back(name + " " + std::to_string(value)); }
    void tell(const std::string& name, int value, bool flag) {
        calls.push_back(name + " " + std::to_string(value) + (flag ? " on" : " off"));
    }
};

}
