#pragma once

#include "Backend/core/MirelIF.h"
#include "Backend/input/ControlMessageManager.h"
#include "Backend/midi/MidiPlayer.h"
#include "Platform/WindowSink.h"

#include <atomic>
#include <cstdint>
#include <string>

namespace Host::Cli {

// What a script sees of its desk: it takes the place of the host, of the controls and of the window, and keeps a line
// of text for each thing that it is asked to tell.
class ScriptPlayer : public Backend::MidiEngine::MidiPlayer,
                     public Backend::Controls::ControlMessageManager,
                     private Platform::WindowSink {
public:
    struct Options {
        bool show = false;     // A line for each event that is shown.
        bool updates = false;  // A line for each event that the controls hear of.
    };

    explicit ScriptPlayer(Options options);

    // Where the slice that plays begins, in ppq.
    void setSliceFrom(std::int32_t ppq) { m_sliceFrom = ppq; }

    // The window, if the script shows events.
    HWND getWindowHandle() { return m_options.show ? handle() : nullptr; }

    // What was told since the last call.
    std::string takeOutput();

    void playMidi(const Backend::MidiEngine::MirelMidiMessage& message) override;
    void enableMidiInput(int port, bool enable) override;
    void enableMidiOutput(int port, bool enable) override;
    DWORD getThreadId() override { return m_threadId; }
    void pulseSequencer() override {}
    void setTempo(int bpm) override;
    void setTempoSource(char input) override { m_tempoSource = input; }
    char getTempoSource() override { return m_tempoSource; }

    void postUpdateControl(const Backend::MidiEngine::MirelMidiMessage& message) override;

private:
    void windowMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    // "@T WHAT 0xSS D1 D2 ch=C out=O"
    void tell(const char* what, const Backend::MidiEngine::MirelMidiMessage& message, int channel);

    const Options m_options;
    const DWORD m_threadId;
    std::atomic<char> m_tempoSource = -1;

    // Written under the engine's lock only, and read while the engine rests.
    std::int32_t m_sliceFrom = -1;
    std::string m_output;
};

}
