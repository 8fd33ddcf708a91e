#pragma once

#include "Backend/core/MirelMessageManager.h"
#include "Backend/core/messages/MessageManager.h"
#include "Backend/core/messages/MessageManagerMaster.h"
#include "tests/support/RunningDesk.h"
#include "tests/support/win32/FakeMirelGui.h"

#include <string>
#include <vector>

namespace TestSupport {

// A main window's interface with a desk behind it that changes nothing and records in words what is posted to it. Its
// log is that of a real desk.
class DeskGui : public FakeMirelGui {
public:
    DeskGui();
    ~DeskGui() override;

    // What was posted to the desk since the last call: "NUMBER W L" each, with selectors and texts in words.
    std::vector<std::string> takePosted();

    // What was requested of the window since the last call.
    std::vector<std::string> takeCalls();

    int defaultOutput = -1;
    RunningDesk desk;

    int getDefaultMidiOutput() override { return defaultOutput; }
    Backend::MirelMessageManager& getMirelMessageManager() override { return m_posts; }
    Backend::MirelIF& getMirelIF() override { return desk.mirel(); }
    void showOutput(bool show) override { call("showOutput", show); }
    void showControl(bool show) override { call("showControl", show); }
    void showDisplay(bool show) override { call("showDisplay", show); }
    void showHelp(bool show) override { call("showHelp", show); }
    void showComputerInput(bool show) override { call("showComputerInput", show); }
    void showSetupDialog() override { m_calls.push_back("showSetupDialog"); }
    void showLoadDialog() override { m_calls.push_back("showLoadDialog"); }
    void importVersion2File() override { m_calls.push_back("importVersion2File"); }
    void clearComputerKeyboardHilight() override { m_calls.push_back("clearComputerKeyboardHilight"); }

private:
    class Recorder : public Backend::MessageManager {
    public:
        using MessageManager::MessageManager;

        // [backend] The messages' own manager, which knows their payloads.
        void setManager(Backend::MessageManager& manager) { m_manager = &manager; }
        std::vector<std::string> take() { return std::exchange(m_lines, {}); }

        bool wantMessage(unsigned int message) override { return m_manager->wantMessage(message); }
        void handleMessage(const MSG& message) override;
        void disposeMessage(const MSG& message) override { m_manager->disposeMessage(message); }

    private:
        Backend::MessageManager* m_manager = nullptr;
        std::vector<std::string> m_lines;
    };

    void call(const char* name, bool show) { m_calls.push_back(std::string(name) + (show ? " on" : " off")); }

    Backend::MessageManagerMaster m_master;
    Recorder m_recorder{m_master};
    Backend::MirelMessageManager m_posts{m_master, desk.mirel()};
    std::vector<std::string> m_calls;
};

}
