#pragma once

#include "Host/common/desk/PortDesk.h"
#include "Host/console/CommandLine.h"
#include "Host/console/OpenRequest.h"
#include "Host/console/win32/FrameWindow.h"

#include <deque>
#include <memory>
#include <optional>
#include <string>

namespace Gui {
class MirelGuiIF;
}

namespace Host::Console {

class SingleInstance;

// The whole program: a desk on the computer's ports, its window and the frame around it. [main]
class ConsoleDesk : private FrameWindow::Listener {
public:
    // The data folder must already be reserved for this process.
    ConsoleDesk(std::shared_ptr<MidiSystem> system, const CommandLine& line);
    ~ConsoleDesk();
    ConsoleDesk(const ConsoleDesk&) = delete;
    ConsoleDesk& operator=(const ConsoleDesk&) = delete;

    // Starts the desk and shows it. False if this build has no window.
    bool start(const SingleInstance& instance, int showCommand);

    // Runs until the window is closed, by the user or otherwise.
    void run();

    // Closes the window, ends all sounding notes, and keeps the settings and the recording. False if the recording
    // could not be written where it belongs; the user is informed, unless the session is ending.
    bool stop();

private:
    void closeRequested() override;
    void sessionEnds() override;
    bool canOpen() const override { return !m_isClosing; }
    void openRequested(const OpenRequest& request) override;
    void timePassed() override;

    Backend::MirelMessageManager& manager();
    void tell(const std::string& text) const;
    FrameWindow::Options frameOptions();
    void chooseOutputs();
    void loadFirstPrograms();
    void open(const OpenRequest& request);
    void openFile(const std::string& path);
    void openBank(const std::string& path);
    void openProgram(const std::string& wanted);
    void waitForBank();
    void removeWindow();
    void endDesk();

    const CommandLine m_line;
    PortDesk m_desk;
    std::unique_ptr<FrameWindow> m_frame;
    std::unique_ptr<Gui::MirelGuiIF> m_gui;
    bool m_isStopped = true;
    std::optional<std::string> m_recording;  // Where it was written, once the desk has ended.
    bool m_isClosing = false;
    bool m_hasSessionEnded = false;
    bool m_isRemovingWindow = false;
    bool m_isAwaitingBank = false;
    std::deque<OpenRequest> m_requests;  // Not opened yet.
    bool m_hasToldFailure = false;
};

}
