#include "Gui/System/SaveDialog.h"

#include "Backend/core/MirelMessageManager.h"
#include "Gui/MirelGuiIF.h"

#include <windows.h>

#include <commdlg.h>

#include <array>
#include <string>
#include <string_view>

namespace Gui::System {

namespace {

constexpr const char* TITLE = "Save";
constexpr const char* FILTER = "Bank Files\0*.bnk\0Program Files\0*.prg\0";
constexpr std::string_view PROGRAM_EXTENSION = ".prg";
constexpr std::size_t MAX_PATH_LENGTH = 4096;

}

void SaveDialog::show() {
    std::array<char, MAX_PATH_LENGTH> path{};
    OPENFILENAMEA dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = m_gui.getWindowHandle();
    dialog.lpstrFilter = FILTER;
    dialog.lpstrFile = path.data();
    dialog.nMaxFile = static_cast<DWORD>(path.size());
    dialog.lpstrTitle = TITLE;
    dialog.lpstrDefExt = "bnk";  // Or that of the filter.
    dialog.Flags = OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    if (!GetSaveFileNameA(&dialog))
        return;
    const std::string chosen = path.data();
    Backend::MirelMessageManager& desk = m_gui.getMirelMessageManager();
    if (chosen.ends_with(PROGRAM_EXTENSION))
        desk.postSaveToProgram(chosen, nullptr);
    else
        desk.postSaveToBank(chosen, nullptr);
}

}
