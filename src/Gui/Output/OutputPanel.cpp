#include "Gui/Output/OutputPanel.h"

#include "Backend/core/messages/GuiMessageManagerMaster.h"
#include "Backend/core/trace/Trace.h"
#include "Gui/MirelGuiIF.h"

namespace Gui::Output {

OutputPanel::OutputPanel(MirelGuiIF& gui)
    : SkinPanel(gui, 0, true), m_ccPanel(gui), m_musicKeyboardPanel(gui), m_layerPanel(gui), m_zonePanel(gui) {
    gui.getGuiMessageManagerMaster().addMessageManager(&m_layerPanel.getMessageManager());
    gui.getGuiMessageManagerMaster().addMessageManager(&m_zonePanel.getMessageManager());
}

void OutputPanel::createWnd(HINSTANCE module, HWND parentWindow) {
    SkinPanel::createWnd(module, parentWindow);
    SetWindowTextA(getWindowHandle(), "Gui::Output::OutputPanel");
}

void OutputPanel::setupPanels() {
    const auto trace = [](long line, const char* text) {
        Backend::Trace::channel().trace("src\\Gui\\Output\\OutputPanel", line, "Gui::Output::OutputPanel::setupPanels",
                                        text);
    };
    trace(__LINE__, "IN");
    add(&m_ccPanel);
    add(&m_musicKeyboardPanel);
    add(&m_zonePanel);
    add(&m_layerPanel);
    m_zonePanel.setupPanels();
    m_layerPanel.setupPanels();
    trace(__LINE__, "OUT");
}

}
