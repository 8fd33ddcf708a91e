#include "Gui/System/SystemPanel.h"

#include "Backend/core/MirelMessageManager.h"
#include "Backend/functions/values/OnOffToggle.h"
#include "Backend/functions/values/SelectType.h"
#include "Gui/MirelGuiIF.h"
#include "Gui/ResourceIds.h"
#include "Gui/Rules/texts/ProgramListText.h"
#include "Gui/Utils/skin/GdiManager.h"
#include "Gui/Utils/skin/SkinProperties.h"
#include "Gui/Utils/widgets/FileDialog.h"
#include "Gui/Utils/windows/WindowProperties.h"

#include <windowsx.h>

namespace Gui::System {

namespace {

constexpr int OUTPUT_ROWS = 15;
constexpr int PROGRAM_ROWS = 25;

struct ButtonRow {
    int id;
    Button::Kind kind;
    int helpId;
    bool isSmall;          // Has the smaller font.
    bool reportOnRelease;  // What it opens would keep the button from getting its release.
};

constexpr ButtonRow BUTTONS[] = {
    {IDC_SYSTEM_PREVIOUS_OUTPUT, Button::Kind::push, HELP_PREVIOUS_OUTPUT, true, false},
    {IDC_SYSTEM_NEXT_OUTPUT, Button::Kind::push, HELP_NEXT_OUTPUT, true, false},
    {IDC_SYSTEM_OUT, Button::Kind::toggle, HELP_SHOW_OUTPUT, false, false},
    {IDC_SYSTEM_CONTROL, Button::Kind::toggle, HELP_SHOW_CONTROL, false, false},
    {IDC_SYSTEM_DISPLAY, Button::Kind::toggle, HELP_SHOW_DISPLAY, false, false},
    {IDC_SYSTEM_HELP, Button::Kind::toggle, HELP_SHOW_HELP, false, false},
    {IDC_SYSTEM_SETUP, Button::Kind::push, HELP_FUNCTION_MENU, false, true},
    {IDC_SYSTEM_RESET, Button::Kind::push, HELP_RESET, false, false},
    {IDC_SYSTEM_GLOBAL_KEYBOARD, Button::Kind::toggle, HELP_GLOBAL_KEYBOARD, false, false},
    {IDC_SYSTEM_PREVIOUS_PROGRAM, Button::Kind::push, HELP_PREVIOUS_PROGRAM, true, false},
    {IDC_SYSTEM_NEXT_PROGRAM, Button::Kind::push, HELP_NEXT_PROGRAM, true, false},
    {IDC_SYSTEM_COMPUTER_INPUT, Button::Kind::toggle, HELP_SHOW_COMPUTER_INPUT, false, false},
    {IDC_SYSTEM_MIDI_INPUT, Button::Kind::toggle, HELP_SHOW_MIDI_INPUT, false, false},
    {IDC_SYSTEM_OSCILLATOR, Button::Kind::toggle, HELP_SHOW_OSCILLATOR, false, false},
    {IDC_SYSTEM_JOYSTICK_INPUT, Button::Kind::toggle, HELP_SHOW_JOYSTICK, false, false},
    {IDC_SYSTEM_THRU, Button::Kind::toggle, HELP_MIDI_THRU, false, false},
};

SelectType next() {
    return SelectType(SelectType::UP);
}

SelectType previous() {
    return SelectType(SelectType::DOWN);
}

OnOffToggle onOrOff(bool state) {
    return OnOffToggle(state ? OnOffToggle::ON : OnOffToggle::OFF);
}

}

SystemPanel::SystemPanel(MirelGuiIF& gui)
    : SkinPanel(gui, IDD_SYSTEM),
      m_outputs(gui.getGdiManager()),
      m_programs(gui),
      m_functionMenu(gui.getGdiManager(), IDR_SYSTEM_MENU) {
    for (const ButtonRow& row : BUTTONS)
        m_buttons[row.id] = std::make_unique<Button>(gui, this, row.kind, row.reportOnRelease);
}

void SystemPanel::createWnd(HINSTANCE module, HWND parentWindow) {
    SkinPanel::createWnd(module, parentWindow);
    createButtons();
    createComboBox(m_outputs, IDC_SYSTEM_OUTPUT, OUTPUT_ROWS, HELP_DEFAULT_OUTPUT);
    createComboBox(m_programs, IDC_SYSTEM_PROGRAM, PROGRAM_ROWS, HELP_PROGRAM);
    refreshSettings();
    refreshOutputs();
    refreshPrograms();
}

void SystemPanel::createButtons() {
    const GdiManager& gdi = gui().getGdiManager();
    for (const ButtonRow& row : BUTTONS) {
        Button& button = *m_buttons[row.id];
        button.create(GetDlgItem(getWindowHandle(), row.id));
        button.setFont(row.isSmall ? gdi.getFont5() : gdi.getFont6());
        setNumber(button.getWindowHandle(), SkinProperties::HELP, row.helpId);
    }
}

void SystemPanel::createComboBox(ComboBox& box, int id, int rowsPerColumn, int helpId) {
    const HWND edit = GetDlgItem(getWindowHandle(), id);
    SendMessageA(edit, WM_SETFONT, reinterpret_cast<WPARAM>(gui().getGdiManager().getFont4().handle()), FALSE);
    box.attach(edit, 0, rowsPerColumn);
    setNumber(edit, SkinProperties::HELP, helpId);
}

INT_PTR SystemPanel::dlgProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == ComboBox::changeMessage() && handleChoice(reinterpret_cast<HWND>(wParam)))
        return 1;
    if (message == WM_CONTEXTMENU && reinterpret_cast<HWND>(wParam) == window) {
        showFunctionMenu(lParam);
        return 1;
    }
    return SkinPanel::dlgProc(window, message, wParam, lParam);
}

bool SystemPanel::handleChoice(HWND window) {
    Backend::MirelMessageManager& desk = gui().getMirelMessageManager();
    if (window == m_outputs.getWindowHandle())
        desk.postChangeDefaultMidiOutput(SelectType(SelectType::SPECIFIC, m_outputs.getSelectedValue()));
    else if (window == m_programs.getWindowHandle())
        desk.postChangeProgram(SelectType(SelectType::SPECIFIC, m_programs.getSelectedValue()));
    else
        return false;
    return true;
}

void SystemPanel::buttonChanged(int id, bool state) {
    Backend::MirelMessageManager& desk = gui().getMirelMessageManager();
    switch (id) {
        case IDC_SYSTEM_PREVIOUS_OUTPUT: desk.postChangeDefaultMidiOutput(previous()); break;
        case IDC_SYSTEM_NEXT_OUTPUT: desk.postChangeDefaultMidiOutput(next()); break;
        case IDC_SYSTEM_PREVIOUS_PROGRAM: desk.postChangeProgram(previous()); break;
        case IDC_SYSTEM_NEXT_PROGRAM: desk.postChangeProgram(next()); break;
        case IDC_SYSTEM_THRU: desk.postChangeMidiThru(onOrOff(state), true); break;
        case IDC_SYSTEM_GLOBAL_KEYBOARD: desk.postChangeGlobalKeyboard(onOrOff(state), true); break;
        case IDC_SYSTEM_RESET: desk.postResetMirel(); break;
        case IDC_SYSTEM_OUT: gui().showOutput(state); break;
        case IDC_SYSTEM_CONTROL: gui().showControl(state); break;
        case IDC_SYSTEM_DISPLAY: gui().showDisplay(state); break;
        case IDC_SYSTEM_HELP: gui().showHelp(state); break;
        case IDC_SYSTEM_COMPUTER_INPUT: gui().showComputerInput(state); break;
        case IDC_SYSTEM_SETUP: gui().showSetupDialog(); break;
        default: break;
    }
}

void SystemPanel::refreshOutputs() {
    m_outputs.clearItems();
    int index = 0;
    for (const auto& port : gui().getMidiOutputPorts()) {
        if (port.enabled && port.available)
            m_outputs.addItem(index, port.name);
        ++index;
    }
    selectDefaultOutput();
}

void SystemPanel::selectDefaultOutput() {
    m_outputs.selectValue(gui().getDefaultMidiOutput());
}

void SystemPanel::refreshPrograms() {
    const Backend::Program& current = gui().getCurrentProgram();
    m_programs.clearItems();
    int index = 0;
    for (const std::string& line :
         describePrograms(gui().getCurrentBank().getProgramNames(), current.getIndex(), current.getName()))
        m_programs.addItem(index++, line);
    selectCurrentProgram();
}

void SystemPanel::selectCurrentProgram() {
    const Backend::Program& current = gui().getCurrentProgram();
    m_programs.selectValue(current.getIndex());
    SetWindowTextA(m_programs.getWindowHandle(), describeProgram(current.getIndex(), current.getName()).c_str());
}

void SystemPanel::setButton(int id, bool state) {
    m_buttons.at(id)->setState(state);
}

void SystemPanel::setOutputButton(bool state) {
    setButton(IDC_SYSTEM_OUT, state);
}

void SystemPanel::setControlButton(bool state) {
    setButton(IDC_SYSTEM_CONTROL, state);
}

void SystemPanel::setDisplayButton(bool state) {
    setButton(IDC_SYSTEM_DISPLAY, state);
}

void SystemPanel::setHelpButton(bool state) {
    setButton(IDC_SYSTEM_HELP, state);
}

void SystemPanel::setComputerInputButton(bool state) {
    setButton(IDC_SYSTEM_COMPUTER_INPUT, state);
}

void SystemPanel::refreshSettings() {
    setButton(IDC_SYSTEM_THRU, gui().getRegistrySettings().getMidiThru());
    setButton(IDC_SYSTEM_GLOBAL_KEYBOARD, gui().getRegistrySettings().getGlobalKeyboard());
}

// In a program that is not in front, a menu stays open, whatever the user does.
void SystemPanel::comeToFront() {
    SetForegroundWindow(GetAncestor(getWindowHandle(), GA_ROOT));
}

void SystemPanel::showOutputMenu() {
    comeToFront();
    SendMessageA(m_outputs.getWindowHandle(), WM_RBUTTONDOWN, MK_RBUTTON, 0);
}

void SystemPanel::showProgramMenu() {
    comeToFront();
    SendMessageA(m_programs.getWindowHandle(), WM_RBUTTONDOWN, MK_RBUTTON, 0);
}

void SystemPanel::showFunctionMenu(LPARAM position) {
    switch (m_functionMenu.track(getWindowHandle(), GET_X_LPARAM(position), GET_Y_LPARAM(position))) {
        case IDM_SYSTEM_SAVE: save(); break;
        case IDM_SYSTEM_LOAD: gui().showLoadDialog(); break;
        case IDM_SYSTEM_SETUP: gui().showSetupDialog(); break;
        case IDM_SYSTEM_IMPORT: gui().importVersion2File(); break;
        default: break;
    }
}

// The current program, as a file of its own or in a copy of the bank.
void SystemPanel::save() {
    const auto path = FileDialog("Save", {BANK_FILES, PROGRAM_FILES}).save(gui().getWindowHandle());
    if (!path)
        return;
    if (path->ends_with(".prg"))
        gui().getMirelMessageManager().postSaveToProgram(*path, nullptr);
    else
        gui().getMirelMessageManager().postSaveToBank(*path, nullptr);
}

}
