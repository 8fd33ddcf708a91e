#include "Host/console/win32/ConsoleDesk.h"

#include "Backend/core/MirelMessageManager.h"
#include "Backend/core/files/Bank.h"
#include "Backend/core/files/BankFile.h"
#include "Backend/core/installation/MirelUtils.h"
#include "Backend/core/installation/Product.h"
#include "Backend/core/messages/MessageManagerMaster.h"
#include "Backend/core/settings/RegistrySettings.h"
#include "Backend/functions/values/SelectType.h"
#include "Gui/MirelGuiIF.h"
#include "Host/common/desk/RecordTarget.h"
#include "Host/common/desk/StartChoices.h"
#include "Host/console/DeskFileName.h"
#include "Host/console/win32/SingleInstance.h"
#include "Platform/Files.h"
#include "Platform/Sleep.h"

#include <utility>

namespace Host::Console {

using Backend::MirelUtils;

ConsoleDesk::ConsoleDesk(std::shared_ptr<MidiSystem> system, const CommandLine& line)
    : m_line(line),
      m_desk(std::move(system), {.product = MIREL_PRODUCT,
                                 .dataFolder = MirelUtils::getMirelAppDataDir(),
                                 .virtualPort = "",
                                 .recordsAll = !line.recordFile.empty()}) {}

ConsoleDesk::~ConsoleDesk() {
    removeWindow();
}

Backend::MirelMessageManager& ConsoleDesk::manager() {
    return m_desk.mirel().getMessageManager();
}

bool ConsoleDesk::start(const SingleInstance& instance, int showCommand) {
    m_desk.start();
    m_isStopped = false;
    chooseOutputs();
    m_gui.reset(manager().sendCreateMirelGui(false));
    if (!m_gui)
        return false;
    FrameWindow::Listener& listener = *this;
    m_frame = std::make_unique<FrameWindow>(listener, frameOptions());
    m_gui->create(m_frame->getWindowHandle());
    m_gui->initialize();
    m_frame->setGui(m_gui.get());
    m_frame->show(showCommand);
    // Comes before anything that may open a box, so that another start doesn't wait for the user's answer.
    instance.announce(m_frame->getWindowHandle());
    loadFirstPrograms();
    return true;
}

void ConsoleDesk::run() {
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
        // The desk does not report changes of its program to its host.
        if (m_frame)
            m_frame->refreshTitle();
    }
}

bool ConsoleDesk::stop() {
    removeWindow();
    endDesk();
    if (m_line.recordFile.empty() || m_recording == m_line.recordFile)
        return true;
    if (!m_hasSessionEnded)
        tell(m_line.recordFile + ": can't be written. " +
             (m_recording ? "The recording is in " + *m_recording + "." : "The recording is lost."));
    return false;
}

void ConsoleDesk::endDesk() {
    if (std::exchange(m_isStopped, true))
        return;
    m_desk.stop();
    if (!m_line.recordFile.empty())
        m_recording = keepRecording(m_desk.ports().recorder(), m_line.recordFile);
}

void ConsoleDesk::closeRequested() {
    m_isClosing = true;
    PostQuitMessage(0);
}

// The system may end the program as soon as this returns, without waiting for a box. An installer waits for the end.
void ConsoleDesk::sessionEnds() {
    m_isClosing = true;
    m_hasSessionEnded = true;
    if (m_isRemovingWindow)
        return;  // This comes while the window waits for the desk; what follows there ends the desk.
    if (m_gui)
        m_gui->destroy();
    endDesk();
    PostQuitMessage(0);
}

void ConsoleDesk::openRequested(const OpenRequest& request) {
    // Requests that arrive while one waits for its bank must not change the bank before it goes on.
    m_requests.push_back(request);
    while (!m_isAwaitingBank && !m_requests.empty()) {
        const OpenRequest next = m_requests.front();
        m_requests.pop_front();
        open(next);
    }
}

// The desk may be closed while a box waits for an answer.
void ConsoleDesk::open(const OpenRequest& request) {
    if (!m_isClosing && !request.bank.empty())
        openBank(request.bank);
    for (const std::string& file : request.files)
        if (!m_isClosing)
            openFile(file);
    if (!m_isClosing && !request.program.empty())
        openProgram(request.program);
}

void ConsoleDesk::timePassed() {
    m_frame->refreshTitle();
    if (!m_desk.hasFailed() || std::exchange(m_hasToldFailure, true))
        return;
    tell("The player has stopped. Start the desk again.");
    closeRequested();
}

// Shows a box over the frame, never over the window of another program that the user is working in.
void ConsoleDesk::tell(const std::string& text) const {
    const HWND frame = m_frame ? m_frame->getWindowHandle() : nullptr;
    MessageBoxA(IsIconic(frame) ? nullptr : frame, text.c_str(), MIREL_PRODUCT, MB_OK);
}

FrameWindow::Options ConsoleDesk::frameOptions() {
    const auto& settings = m_desk.mirel().getRegistrySettings();
    return {settings.getUseSkinBorder(), settings.getAlwaysOnTop(), settings.getDockToBottomEdge(),
            settings.getGlobalKeyboard()};
}

void ConsoleDesk::chooseOutputs() {
    m_desk.waitUntilIdle();
    const int output =
        findBetterOutput(m_desk.ports().outputs(), m_desk.mirel().getRegistrySettings().getDefaultMidiOutput());
    if (output >= 0)
        manager().postChangeDefaultMidiOutput(SelectType(SelectType::SPECIFIC, output));
}

void ConsoleDesk::loadFirstPrograms() {
    const std::string& defaultBank = m_desk.mirel().getRegistrySettings().getDefaultBank();
    if (m_line.bank.empty() && !defaultBank.empty()) {
        manager().postLoadBank(defaultBank);
        // The bank existed once, so a box at each start would be too much.
        if (!Platform::Files::size(defaultBank))
            m_desk.mirel().displayString(defaultBank + ": can't be read.\r\n");
    }
    openRequested({m_line.bank, m_line.program, m_line.files});
}

void ConsoleDesk::openFile(const std::string& path) {
    switch (kindOfDeskFile(path)) {
        case DeskFileKind::BANK: return openBank(path);
        case DeskFileKind::PROGRAM: return openProgram(path);
        case DeskFileKind::NONE: return tell(path + ": is neither a bank (.bnk) nor a program (.prg).");
    }
}

void ConsoleDesk::openBank(const std::string& path) {
    if (!Platform::Files::size(path))
        tell(path + ": can't be read.");
    else if (Backend::BankFile::readProgramNames(path).empty())
        tell(path + ": holds no readable programs.");  // The bank that there is stays.
    else
        manager().postLoadBank(withLowerCaseExtension(path));
}

void ConsoleDesk::openProgram(const std::string& wanted) {
    if (kindOfDeskFile(wanted) == DeskFileKind::PROGRAM) {
        if (!Platform::Files::size(wanted))
            tell(wanted + ": can't be read.");
        else if (Backend::BankFile::readProgramNames(wanted).empty())
            tell(wanted + ": holds no readable program.");
        else
            manager().postLoadProgram(withLowerCaseExtension(wanted));
        return;
    }
    waitForBank();
    if (m_isClosing)
        return;
    const int index = findProgram(m_desk.mirel().getCurrentBank().getProgramNames(), wanted);
    if (index >= 0)
        manager().postChangeProgram(SelectType(SelectType::SPECIFIC, index));
    else
        tell("The bank has no program \"" + wanted + "\".");
}

// The desk may wait for its log, and the log for this thread's windows.
void ConsoleDesk::waitForBank() {
    m_isAwaitingBank = true;
    while (!m_isClosing && !m_desk.mirel().getMessageManagerMaster().isIdle())
        Platform::sleepAnsweringWindows(1);
    m_isAwaitingBank = false;
}

void ConsoleDesk::removeWindow() {
    m_isRemovingWindow = true;
    if (m_gui)
        m_gui->destroy();
    if (m_frame)
        m_frame->setGui(nullptr);
    m_gui.reset();
    m_frame.reset();
}

}
