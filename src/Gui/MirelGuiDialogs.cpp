// The window's questions and messages to the user.
#include "Gui/MirelGui.h"

#include "Backend/core/MirelMessageManager.h"
#include "Gui/ImportVersion2Dialog.h"
#include "Gui/Utils/widgets/FileDialog.h"
#include "Gui/Utils/widgets/TextPrompt.h"

namespace Gui {

namespace {

const FileDialog::Filter PRESET_FILES{"Preset Files", "*.pst"};

}

void MirelGui::showLoadDialog() {
    const auto path = FileDialog("Load", {BANK_FILES, PROGRAM_FILES}).open(m_windowHandle);
    if (!path)
        return;
    if (path->ends_with(".prg"))
        getMirelMessageManager().postLoadProgram(*path);
    else
        getMirelMessageManager().postLoadBank(*path);
}

void MirelGui::importVersion2File() {
    constexpr const char* NEW_FILE = "Select Name Of New File";
    const auto from =
        FileDialog("Select Version 2 File To Import", {BANK_FILES, PROGRAM_FILES, PRESET_FILES}).open(m_windowHandle);
    if (!from)
        return;
    if (from->ends_with(".bnk")) {
        if (const auto to = FileDialog(NEW_FILE, {BANK_FILES}).save(m_windowHandle))
            ImportVersion2BankDialog(getMirelMessageManager(), "Importing Bank...", *from, *to).run(m_windowHandle);
    } else if (from->ends_with(".prg")) {
        if (const auto to = FileDialog(NEW_FILE, {PROGRAM_FILES}).save(m_windowHandle))
            ImportVersion2ProgramDialog(getMirelMessageManager(), "Importing Program...", *from, *to)
                .run(m_windowHandle);
    } else if (from->ends_with(".pst")) {
        if (const auto to = TextPrompt("Enter Preset Name", "Preset Name:", "default preset name").run(m_windowHandle))
            ImportVersion2PresetDialog(getMirelMessageManager(), "Importing Preset...", *from, *to).run(m_windowHandle);
    }
}

void MirelGui::showSetupDialog() {
    m_setupDialog.show();
}

void MirelGui::showProgramMenu() {
    m_systemPanel.showProgramMenu();
}

void MirelGui::showDefaultMidiOutputMenu() {
    m_systemPanel.showOutputMenu();
}

void MirelGui::displayHelp(const std::string& text) {
    m_helpPanel.showHelp(text);
}

void MirelGui::displayHelp(HWND window) {
    m_helpPanel.showHelp(window);
}

void MirelGui::displayHelp(int id) {
    m_helpPanel.showHelp(id);
}

}
