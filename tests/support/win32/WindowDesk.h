#pragma once

#include "Backend/core/Mirel.h"
#include "Backend/midi/MidiPlayer.h"
#include "Gui/MirelGui.h"
#include "Platform/MessageThread.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/win32/TestWindows.h"

#include <atomic>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace TestSupport {

// A whole desk with its real window, in a host's window that records what it gets. The test's thread acts as the
// window's. One at a time.
class WindowDesk : private Backend::MidiEngine::MidiPlayer {
public:
    WindowDesk();
    ~WindowDesk() override;
    WindowDesk(const WindowDesk&) = delete;
    WindowDesk& operator=(const WindowDesk&) = delete;

    // Before start: sets the settings that an earlier run left, and the folder of the program.
    void prepareSettings(const std::function<void(Backend::RegistrySettings&)>& set);
    void prepareProgramFolder(const std::string& folder);

    // Starts like the host, with two inputs and three outputs, without a window.
    void start();

    // From here to the end a player plays slices on its own thread.
    void startPlayer();

    // Creates the window, fills it, and waits until everything is done.
    Gui::MirelGui& open(bool isVstPlugin = false);

    // Destroys the window and its object.
    void close();

    Backend::Mirel& mirel() { return *m_mirel; }
    Gui::MirelGui& gui() { return *m_gui; }
    HWND window() { return m_gui->getWindowHandle(); }

    // Dispatches messages until all threads are idle.
    void settle();

    // The size of the desk's window.
    SIZE size();

    // Posts what the desk would post, with an object that the window must free, and waits until it is done.
    void tell(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

    // The keys that the desk got since the last call: "down CODE MODIFIERS", with "repeat", or "up CODE MODIFIERS".
    std::vector<std::string> takeKeys();

    std::string file(const std::string& name) const { return m_folder.file(name); }

    // Before startPlayer: gets the events that come out. [player]
    std::function<void(const Backend::MidiEngine::MirelMidiMessage&)> onPlayed;

    TestWindow host{800, 600};

private:
    class WitnessMirel;

    void playMidi(const Backend::MidiEngine::MirelMidiMessage& message) override {
        if (onPlayed)
            onPlayed(message);
    }
    void enableMidiInput(int, bool) override {}
    void enableMidiOutput(int, bool) override {}
    DWORD getThreadId() override { return m_threadId; }
    void pulseSequencer() override {}
    void setTempo(int) override {}
    void setTempoSource(char) override {}
    char getTempoSource() override { return -1; }

    TemporaryFolder m_folder;
    std::atomic<DWORD> m_threadId = Platform::currentThreadId();
    std::vector<std::string> m_keys;
    std::unique_ptr<Backend::Mirel> m_mirel;
    std::unique_ptr<Gui::MirelGui> m_gui;
    std::thread m_player;
    std::atomic<bool> m_isPlaying = false;
    bool m_isRunning = false;
};

}
