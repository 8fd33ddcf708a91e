#pragma once

#include "Backend/midi/MidiPlayer.h"
#include "Platform/WindowSink.h"

#include <atomic>
#include <cstdint>
#include <mutex>
#include <string>

namespace Host::Cli {

// What a script sees of its desk: it takes the place of the host and of the window, and keeps a line of text for each
// thing that it is asked to tell.
class ScriptPlayer : public Backend::MidiEngine::MidiPlayer, private Platform::WindowSink {
public:
    struct Options {
        bool show = false;     // A line for each event that is shown.
        bool updates = false;  // A line for each event that the controls hear of.
        bool window = false;   // A line for each notification to the window.
    };

    explicit ScriptPlayer(Options options);

    // Where the slice that plays begins, in ppq.
    void setSliceFrom(std::int32_t ppq) { m_sliceFrom = ppq; }

    // The window, if the script wants to see what it gets.
    HWND getWindowHandle() { return m_options.show || m_options.window ? handle() : nullptr; }

    // Tells of an event that the controls hear of.
    void tellUpdate(const Backend::MidiEngine::MirelMidiMessage& message);

    // Adds lines of the script's own.
    void tell(const std::string& lines);

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
