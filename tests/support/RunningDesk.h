#pragma once

#include "Backend/core/Mirel.h"
#include "Backend/midi/MidiPlayer.h"
#include "Host/cli/script/BackendCalls.h"
#include "Platform/MessageThread.h"
#include "Platform/WindowSink.h"
#include "tests/support/TemporaryFolder.h"

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace TestSupport {

// A whole desk with a data folder of its own, a host without ports or a clock, and a stand-in for the window that
// records its notifications in words. The test's thread acts as the player's. One at a time.
class RunningDesk : public Backend::MidiEngine::MidiPlayer, private Platform::WindowSink {
public:
    struct Posted {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
        DWORD thread;
    };

    RunningDesk();
    ~RunningDesk() override;
    RunningDesk(const RunningDesk&) = delete;
    RunningDesk& operator=(const RunningDesk&) = delete;

    // Before start: settings as an earlier run left them.
    void prepareSettings(const std::function<void(Backend::RegistrySettings&)>& set);

    // The host's start sequence, with these ports.
    void start(const std::vector<Backend::MidiEngine::MidiInputPort>& inputs,
               const std::vector<Backend::MidiEngine::MidiOutputPort>& outputs);

    // The same with two inputs and three outputs.
    void start();

    // Ends everything; the destructor does so too if necessary.
    void end();

    Backend::Mirel& mirel() { return *m_mirel; }

    void openWindow() { m_mirel->setGuiWindowHandle(handle()); }
    HWND window() { return handle(); }

    // Runs something on the backend thread and waits until all that it set off is done.
    void run(const std::function<void(Backend::Mirel&)>& action);

    // Has the backend thread run something, without waiting for it.
    void post(const std::function<void(Backend::Mirel&)>& action);

    // Waits until nothing goes on; plays empty slices where something waits for one.
    void settle();

    // Settles after a slice.
    void playSlice(std::int32_t from, std::int32_t to);

    // Notifications to the window since the last call: "NUMBER TEXT" each.
    std::vector<std::string> takeTold();

    // The same as they were posted. Objects that words pointed to are gone.
    std::vector<Posted> takePosted();

    // What came out since the last call: "0xSS D1 D2 ch=C out=O" each.
    std::vector<std::string> takePlayed();

    // What the host was asked for since the last call.
    std::vector<std::string> takeCalls();

    // The text of the log.
    std::string log();

    std::atomic<DWORD> engineThread = 0;  // That asked the host for a tempo.
    std::atomic<DWORD> playerThread = 0;  // That played.

private:
    void playMidi(const Backend::MidiEngine::MirelMidiMessage& message) override;
    void enableMidiInput(int port, bool enable) override;
    void enableMidiOutput(int port, bool enable) override;
    DWORD getThreadId() override { return m_threadId; }
    void pulseSequencer() override {}
    void setTempo(int bpm) override;
    void setTempoSource(char input) override;
    char getTempoSource() override { return m_tempoSource; }
    void windowMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    void call(const std::string& text);

    TemporaryFolder m_folder;
    const DWORD m_threadId = Platform::currentThreadId();
    std::atomic<char> m_tempoSource = -1;
    std::mutex m_lock;
    std::vector<std::string> m_told;
    std::vector<Posted> m_posted;
    std::vector<std::string> m_played;
    std::vector<std::string> m_calls;
    std::unique_ptr<Backend::Mirel> m_mirel;
    std::unique_ptr<Host::Cli::BackendCalls> m_backendCalls;
    bool m_isRunning = false;
    std::int32_t m_clock = 0;
    bool m_hasPlayed = false;
};

// Ports of these names, enabled and available.
template <class Port>
std::vector<Port> makePorts(const std::vector<std::string>& names) {
    std::vector<Port> ports(names.size());
    for (std::size_t i = 0; i < names.size(); ++i)
        ports[i].name = names[i];
    return ports;
}

}
