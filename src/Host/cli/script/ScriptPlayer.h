#pragma once

#include "Backend/midi/MidiPlayer.h"
#include "Platform/WindowSink.h"

#include <atomic>
#include <cstdint>
#include <mutex>
#include <string>

namespace Host::Cli {

// What a script sees of its desk: it stands in for the host and the window, and keeps one line of text for each thing
// it was asked to report.
class ScriptPlayer : public Backend::MidiEngine::MidiPlayer, private Platform::WindowSink {
public:
    struct Options {
        bool show = false;     // A line for each event that is shown.
        bool updates = false;  // A line for each event that reaches the controls.
        bool window = false;   // A line for each notification to the window.
    };

    explicit ScriptPlayer(Options options);

    // Where the current slice begins, in ppq.
    void setSliceFrom(std::int32_t ppq) { m_sliceFrom = ppq; }

    // The window, if the script wants to see its notifications.
    HWND getWindowHandle() { return m_options.show || m_options.window ? handle() : nullptr; }

    // Reports an event that reaches the controls.
    void tellUpdate(const Backend::MidiEngine::MirelMidiMessage& message);

    // Appends lines of the script's own.
    void tell(const std::string& lines);

    // Returns what was reported since the last call.
    std::string takeOutput();

    void playMidi(const Backend::MidiEngine::MirelMidiMessage& message) override;
    void enableMidiInput(int port, bool enable) override;
    void enableMidiOutput(int port, bool enable) override;
    DWORD getThreadId() override { return m_threadId; }
    void pulseSequencer() override {}
    void setTempo(int bpm) override;
    void setTempoSource(char input) override { m_tempoSource = input; }
    char getTempoSource() override { return m_tempoSource; }

private:
    void windowMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    // "@T WHAT EVENT MORE"
    void tellEvent(const char* what, const Backend::MidiEngine::MirelMidiMessage& message, int channel,
                   const std::string& more);

    const Options m_options;
    const DWORD m_threadId;
    std::atomic<char> m_tempoSource = -1;
    std::atomic<std::int32_t> m_sliceFrom = -1;
    std::mutex m_outputLock;
    std::string m_output;
};

}
