// The window's life. Its other parts are in MirelGuiWindow.cpp (messages and keys), MirelGuiPanels.cpp (which screens
// show), MirelGuiChanges.cpp (changes from the desk) and MirelGuiDialogs.cpp.
#include "Gui/MirelGui.h"

#include "Backend/core/MirelIF.h"
#include "Backend/core/installation/MirelUtils.h"
#include "Backend/core/log/DisplayMessageManager.h"
#include "Backend/core/trace/Trace.h"
#include "Gui/ResourceIds.h"
#include "Gui/Utils/windows/WindowPlace.h"
#include "Gui/Utils/windows/WindowProperties.h"
#include "Platform/Shell.h"

#include <objbase.h>

#include <utility>

namespace Gui {

namespace {

constexpr const char* TRACE_FILE = "src\\Gui\\MirelGui";

void trace(long line, const char* function, const char* text) {
    Backend::Trace::channel().trace(TRACE_FILE, line, function, text);
}

HINSTANCE module() {
    return static_cast<HINSTANCE>(Platform::getModuleInstance());
}

}

MirelGui::MirelGui(Backend::MirelIF& mirel, const Backend::RegistrySettings& settings,
                   const std::vector<Backend::MidiEngine::MidiInputPort>& inputs,
                   const std::vector<Backend::MidiEngine::MidiOutputPort>& outputs,
                   const Backend::SequenceManagement::SequencePresetList& sequencePresets, bool isVstPlugin)
    : m_mirelIF(mirel),
      m_settings(settings),
      m_currentBank(mirel.getCurrentBank()),
      m_currentBankName(m_currentBank.getName()),
      m_currentProgram(mirel.getCurrentProgram()),
      m_midiInputPorts(inputs),
      m_midiOutputPorts(outputs),
      m_gmProgramMenu(m_gdiManager, IDR_GM_PROGRAM_MENU),
      m_dataMenu(m_gdiManager, IDR_DATA_MENU),
      m_sequencePresetList(sequencePresets),
      m_setupDialog(*this, m_settings, !isVstPlugin, !isVstPlugin, !isVstPlugin),
      m_displayPanel(*this, mirel.getDisplayMessageManager()),
      m_screenState(mirel.getScreenState()),
      m_isVstPlugin(isVstPlugin) {
    m_guiMessageManagerMaster.addMessageManager(&m_guiMessageManager);
    m_guiMessageManagerMaster.addMessageManager(&m_computerInputPanel.getMessageManager());
    m_guiMessageManagerMaster.addMessageManager(&m_controlPanel.getMessageManager());
}

MirelGui::~MirelGui() = default;

// Where the installer put the desk or, for a desk that was merely copied, where it is.
std::string MirelGui::findHookFolder() {
    std::string folder = Backend::MirelUtils::getMirelProgDir();
    if (!folder.empty())
        return folder;
    constexpr std::size_t LONGEST_PATH = 0x8000;
    folder.resize(LONGEST_PATH);
    folder.resize(GetModuleFileNameA(module(), folder.data(), static_cast<DWORD>(folder.size())));
    const std::size_t separator = folder.rfind('\\');
    return separator == std::string::npos ? std::string() : folder.substr(0, separator);
}

void MirelGui::create(HWND parentWindow) {
    constexpr const char* FUNCTION = "Gui::MirelGui::create";
    trace(__LINE__, FUNCTION, "IN");
    m_isCreated = true;
    m_isComReady = SUCCEEDED(CoInitialize(nullptr));
    Skinner::startHook();
    m_guiMessageManagerMaster.setThreadId(GetCurrentThreadId());
    m_parentWindow = parentWindow;
    m_keyboardLossWatch = std::make_unique<KeyboardLossWatch>(
        [this](HWND window) { return window && (window == m_windowHandle || window == m_focusWindow); },
        [this] { releaseHeldKeys(); });
    createWindows();
    createButtons();
    m_skinner.skinWindow(m_windowHandle);
    enableHook(m_settings.getGlobalKeyboard());
    setupPanels();
    applyScreenState();
    if (!m_isVstPlugin)
        moveToLastPosition();
    m_mirelIF.setGuiWindowHandle(m_windowHandle);
    trace(__LINE__, FUNCTION, "OUT");
}

void MirelGui::createWindows() {
    constexpr int FIRST_HEIGHT = 10;
    constexpr int FOCUS_SIZE = 10;
    registerClassOnce();
    m_windowHandle = CreateWindowExA(0, "MirelGuiWindow2008LE", "MirelGui", WS_CHILD | WS_VISIBLE, CW_USEDEFAULT,
                                     CW_USEDEFAULT, 0, FIRST_HEIGHT, m_parentWindow, nullptr, module(), this);
    m_focusWindow = CreateWindowExA(0, "EDIT", "FocusControl", WS_CHILD | ES_READONLY, 0, 0, FOCUS_SIZE, FOCUS_SIZE,
                                    m_windowHandle, reinterpret_cast<HMENU>(IDC_FOCUS), module(), nullptr);
    Skinner::setNoWheel(m_focusWindow);
    subclass(m_focusWindow, "ORIG_PROC", focusControlProc);
}

// Thru and global keyboard share one place; only the latter is ever shown.
void MirelGui::createButtons() {
    constexpr int RESET_X = 5;
    constexpr int SECOND_X = 37;
    m_resetButton.create("R", RESET_X, m_windowHandle, IDC_MAIN_RESET, module());
    m_thruButton.create("T", SECOND_X, m_windowHandle, IDC_MAIN_THRU, module());
    m_globalKeyButton.create("K", SECOND_X, m_windowHandle, IDC_MAIN_GLOBAL_KEY, module());
}

void MirelGui::setupPanels() {
    constexpr const char* FUNCTION = "Gui::MirelGui::setupPanels";
    constexpr int ROOT_X = 4;
    constexpr int ROOT_Y = 5;
    trace(__LINE__, FUNCTION, "IN");
    m_rootPanel.createWnd(module(), m_windowHandle);
    SetWindowPos(m_rootPanel.getWindowHandle(), nullptr, ROOT_X, ROOT_Y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    m_rootPanel.add(&m_systemPanel);
    m_rootPanel.add(&m_helpPanel);
    m_rootPanel.add(&m_displayPanel);
    m_rootPanel.add(&m_computerInputPanel);
    m_computerInputPanel.setupPanels();
    m_rootPanel.add(&m_controlPanel);
    m_controlPanel.setupPanels();
    m_rootPanel.add(&m_outputPanel);
    m_outputPanel.setupPanels();

    auto& keySettings = m_computerInputPanel.getSettingsPanel();
    m_computerInputPanel.getMainPanel().showWnd(true);
    keySettings.showWnd(true);
    keySettings.getMainSettingsPanel().showWnd(true);
    keySettings.getDownFunctionPanel().showWnd(true);
    keySettings.getUpFunctionPanel().showWnd(true);
    m_controlPanel.getMainPanel().showWnd(true);
    m_controlPanel.getSettingsPanel().showWnd(false);
    m_outputPanel.getMusicKeyboardPanel().showWnd(true);
    m_outputPanel.getZonePanel().getMainPanel().showWnd(true);
    m_outputPanel.getLayerPanel().getMainPanel().showWnd(true);
    m_systemPanel.showWnd(true);
    m_rootPanel.showWnd(true);
    trace(__LINE__, FUNCTION, "OUT");
}

void MirelGui::applyScreenState() {
    showSystemPanel(m_screenState.system);
    showHelp(m_screenState.help);
    showDisplay(m_screenState.display);
    showComputerInput(m_screenState.computerInput);
    showControl(m_screenState.control);
    showOutput(m_screenState.output);
    showLayer(m_screenState.layer);
    showCc(m_screenState.cc);
    showZone(m_screenState.zone);
}

void MirelGui::moveToLastPosition() {
    const WindowPosition position = getInitialWindowPosition();
    if (position.isKnown())
        moveWindow({false, position.x}, {false, position.y});
}

WindowPosition MirelGui::getInitialWindowPosition() const {
    RECT host{};
    GetWindowRect(m_parentWindow, &host);
    const WindowPosition position =
        chooseInitialWindowPosition(m_settings.getLastWindowPosition(), m_settings.getDockToBottomEdge(),
                                    {host.left, host.top, host.right, host.bottom});
    return MonitorFromPoint({position.x, position.y}, MONITOR_DEFAULTTONULL) ? position : WindowPosition();
}

void MirelGui::initialize() {
    m_systemPanel.refreshOutputs();
    m_displayPanel.setLargeFont(m_settings.getLargeDisplayFont());
    m_mirelIF.getDisplayMessageManager().postSetListener(&m_displayPanel);
    m_computerInputPanel.load();
    m_computerInputPanel.getSettingsPanel().getDownFunctionPanel().refresh();
    m_computerInputPanel.getSettingsPanel().getUpFunctionPanel().refresh();
    m_controlPanel.getSettingsPanel().refresh();
    m_outputPanel.getLayerPanel().getMainPanel().refreshTempo();
    m_outputPanel.getLayerPanel().getSettingsPanel().refresh();
}

void MirelGui::destroy() {
    if (!std::exchange(m_isCreated, false))
        return;
    if (m_windowHandle)  // The host may have destroyed it along with its own.
        DestroyWindow(m_windowHandle);
    m_mirelIF.setGuiWindowHandle(nullptr);
    // The log's thread must not use a panel that is gone.
    m_mirelIF.getDisplayMessageManager().sendSetListener(nullptr);
    m_keyboardHookProxy.setEnabled(false);
    m_keyboardHookProxy.setWindowHandle(nullptr);
    m_keyboardLossWatch.reset();
    Skinner::endHook();
    if (m_isComReady)
        CoUninitialize();
}

Backend::MirelMessageManager& MirelGui::getMirelMessageManager() {
    return m_mirelIF.getMessageManager();
}

MusicKeyboardCtl& MirelGui::getMainMusicKeyboardCtl() {
    return m_outputPanel.getMusicKeyboardPanel().getMusicKeyboardCtl();
}

std::string MirelGui::getMidiOutputName(int index) {
    if (index == -1)
        return "Default";
    if (index < 0 || static_cast<std::size_t>(index) >= m_midiOutputPorts.size())
        return "???";
    return m_midiOutputPorts[static_cast<std::size_t>(index)].name;
}

int MirelGui::getNumberOfPrograms() {
    return static_cast<int>(m_currentBank.getProgramNames().size());
}

Rect MirelGui::getMainWindowPosition() {
    return windowPlace(m_parentWindow);
}

}
