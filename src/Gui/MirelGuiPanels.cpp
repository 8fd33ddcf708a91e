// Which screens show.
#include "Gui/MirelGui.h"

#include "Backend/functions/values/RelativeFixedValue.h"
#include "Gui/Rules/places/WindowMove.h"
#include "Gui/Utils/windows/UserMessages.h"

namespace Gui {

namespace {

// The window without a screen: only its edges, before the first one shows, or a strip with two buttons.
constexpr int EMPTY_WIDTH = 0;
constexpr int EMPTY_HEIGHT = 10;
constexpr int COLLAPSED_WIDTH = 104;
constexpr int COLLAPSED_HEIGHT = 33;

}

void MirelGui::resizeWindow(int width, int height) {
    SetWindowPos(m_windowHandle, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_ASYNCWINDOWPOS);
}

void MirelGui::showCollapsed(bool collapsed) {
    if (!collapsed) {
        for (const Button* button : {&m_thruButton, &m_resetButton, &m_globalKeyButton})
            ShowWindow(button->getWindowHandle(), SW_HIDE);
        resizeWindow(EMPTY_WIDTH, EMPTY_HEIGHT);
        return;
    }
    resizeWindow(COLLAPSED_WIDTH, COLLAPSED_HEIGHT);
    ShowWindow(m_resetButton.getWindowHandle(), SW_SHOW);
    ShowWindow(m_globalKeyButton.getWindowHandle(), SW_SHOW);
    m_thruButton.setState(m_settings.getMidiThru());
    m_globalKeyButton.setState(m_settings.getGlobalKeyboard());
    InvalidateRect(m_resetButton.getWindowHandle(), nullptr, TRUE);
}

void MirelGui::showPanel(Panel& panel, bool show) {
    if (panel.isVisible() == show)
        return;
    if (show && !m_rootPanel.anyPanelVisible())
        showCollapsed(false);
    panel.showWnd(show);
    if (!show && !m_rootPanel.anyPanelVisible())
        showCollapsed(true);
}

void MirelGui::showSystemPanel(bool show) {
    showPanel(m_systemPanel, show);
    postToHost(UM_SYSTEM_PANEL_SHOWN);
}

void MirelGui::toggleSystemPanel() {
    showSystemPanel(!m_systemPanel.isVisible());
}

void MirelGui::showHelp(bool show) {
    showPanel(m_helpPanel, show);
    m_systemPanel.setHelpButton(show);
}

void MirelGui::toggleHelp() {
    showHelp(!m_helpPanel.isVisible());
}

void MirelGui::showDisplay(bool show) {
    showPanel(m_displayPanel, show);
    m_systemPanel.setDisplayButton(show);
}

void MirelGui::toggleDisplay() {
    showDisplay(!m_displayPanel.isVisible());
}

void MirelGui::showComputerInput(bool show) {
    showPanel(m_computerInputPanel, show);
    m_systemPanel.setComputerInputButton(show);
}

void MirelGui::toggleComputerInput() {
    showComputerInput(!m_computerInputPanel.isVisible());
}

void MirelGui::showControl(bool show) {
    showPanel(m_controlPanel, show);
    m_systemPanel.setControlButton(show);
}

void MirelGui::toggleControl() {
    showControl(!m_controlPanel.isVisible());
}

void MirelGui::showOutput(bool show) {
    showPanel(m_outputPanel, show);
    setOutputButton(show);
}

void MirelGui::toggleOutput() {
    showOutput(!m_outputPanel.isVisible());
}

// A panel of the output screen is visible only together with that screen.
void MirelGui::showInOutput(Panel& panel, Button& button, bool show) {
    if (show && !m_outputPanel.isVisible())
        showOutput(true);
    showPanel(panel, show);
    button.setState(show);
}

void MirelGui::showCc(bool show) {
    showInOutput(m_outputPanel.getCcPanel(), m_outputPanel.getMusicKeyboardPanel().getCcButton(), show);
}

void MirelGui::toggleCc() {
    showCc(!m_outputPanel.isVisible() || !isCcPanelShowing());
}

void MirelGui::showLayer(bool show) {
    showInOutput(m_outputPanel.getLayerPanel(), m_outputPanel.getMusicKeyboardPanel().getLayerButton(), show);
}

void MirelGui::toggleLayer() {
    showLayer(!m_outputPanel.isVisible() || !isLayerPanelShowing());
}

void MirelGui::showZone(bool show) {
    showInOutput(m_outputPanel.getZonePanel(), m_outputPanel.getMusicKeyboardPanel().getZoneButton(), show);
}

void MirelGui::toggleZone() {
    showZone(!m_outputPanel.isVisible() || !isZonePanelShowing());
}

void MirelGui::moveWindow(const RelativeFixedValue& x, const RelativeFixedValue& y) {
    postToHost(UM_MOVE_WINDOW, packWindowMove(x), static_cast<LPARAM>(packWindowMove(y)));
}

}
