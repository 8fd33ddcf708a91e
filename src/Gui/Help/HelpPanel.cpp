#include "Gui/Help/HelpPanel.h"

#include "Backend/core/installation/MirelUtils.h"
#include "Gui/Help/ModuleTime.h"
#include "Gui/MirelGuiIF.h"
#include "Gui/ResourceIds.h"
#include "Gui/Rules/texts/AboutText.h"
#include "Gui/Utils/skin/FieldText.h"
#include "Gui/Utils/skin/GdiManager.h"
#include "Gui/Utils/skin/SkinProperties.h"
#include "Gui/Utils/windows/WindowProperties.h"
#include "Platform/Shell.h"

namespace Gui::Help {

namespace {

constexpr const char* PROCEDURE = "HELP_ORIG_PROC";

}

HelpPanel::HelpPanel(MirelGuiIF& gui)
    : SkinPanel(gui, IDD_HELP, true),
      m_manualButton(gui, this, Button::Kind::push, true),
      m_aboutButton(gui, this, Button::Kind::toggle) {}

void HelpPanel::createWnd(HINSTANCE module, HWND parentWindow) {
    SkinPanel::createWnd(module, parentWindow);
    createButton(m_manualButton, IDC_HELP_MANUAL, HELP_MANUAL);
    createButton(m_aboutButton, IDC_HELP_ABOUT, HELP_ABOUT);
    createEdit();
}

void HelpPanel::createButton(Button& button, int id, int helpId) {
    button.create(GetDlgItem(getWindowHandle(), id));
    button.setFont(gui().getGdiManager().getFont6());
    setNumber(button.getWindowHandle(), SkinProperties::HELP, helpId);
}

void HelpPanel::createEdit() {
    const HWND edit = GetDlgItem(getWindowHandle(), IDC_TEXT);
    setNumber(edit, SkinProperties::TEXT, 1);
    setNumber(edit, SkinProperties::NO_WHEEL, 1);
    setNumber(edit, SkinProperties::HELP, HELP_HELP);
    SendMessageA(edit, WM_SETFONT, reinterpret_cast<WPARAM>(gui().getGdiManager().getFont8().handle()), FALSE);
    subclass(edit, PROCEDURE, editProcedure);
}

LRESULT CALLBACK HelpPanel::editProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_LBUTTONDOWN && !(wParam & MK_CONTROL)) {
        SetFocus(GetParent(window));
        return 0;
    }
    if (message == WM_DESTROY)
        return passOnForTheLastTime(window, PROCEDURE, message, wParam, lParam);
    return callOriginal(window, PROCEDURE, message, wParam, lParam);
}

void HelpPanel::showHelp(int id) {
    if (!m_hover.enter(id))
        return;
    m_buffer[0] = '\0';
    if (HelpHover::hasText(id))
        LoadStringA(static_cast<HINSTANCE>(Platform::getModuleInstance()), static_cast<UINT>(id), m_buffer.data(),
                    static_cast<int>(m_buffer.size()));
    setText(m_buffer.data());
}

void HelpPanel::showHelp(HWND window) {
    const auto id = static_cast<int>(getNumber(window, SkinProperties::HELP));
    if (id == 0)
        m_hover.enterNothing();
    else
        showHelp(id);
}

void HelpPanel::showHelp(const std::string& text) {
    if (m_hover.enterText())
        setText(text.c_str());
}

void HelpPanel::buttonChanged(int id, bool state) {
    if (id == IDC_HELP_MANUAL)
        Backend::MirelUtils::showManual("");
    else
        setShowingAbout(state);
}

void HelpPanel::setShowingAbout(bool showing) {
    m_hover.setShowingAbout(showing);
    setText(showing ? describeProduct(getModuleTime()).c_str() : "");
}

void HelpPanel::setText(const char* text) {
    setFieldText(getWindowHandle(), IDC_TEXT, text);
}

}
