// What the user sees while the desk converts a file of version 2.
#pragma once

#include "Backend/core/MirelMessageManager.h"
#include "Backend/core/WindowMessages.h"
#include "Gui/Utils/widgets/ModalDialog.h"

#include <string>
#include <utility>

namespace Gui {

// Posts one conversion when it opens, and closes when the desk has finished it. [gui]
template <void (Backend::MirelMessageManager::*POST)(const std::string& from, const std::string& to, HWND notify),
          UINT DONE>
class ImportVersion2Dialog : public ModalDialog {
public:
    ImportVersion2Dialog(Backend::MirelMessageManager& desk, std::string text, std::string from, std::string to)
        : ModalDialog(DONE, std::move(text)), m_desk(desk), m_from(std::move(from)), m_to(std::move(to)) {}

    void start(HWND dialog) override { (m_desk.*POST)(m_from, m_to, dialog); }

private:
    Backend::MirelMessageManager& m_desk;
    std::string m_from;
    std::string m_to;
};

using ImportVersion2BankDialog = ImportVersion2Dialog<&Backend::MirelMessageManager::postImportVersion2Bank,
                                                      Backend::WindowMessages::IMPORT_VERSION_2_BANK_DONE.NUMBER>;
using ImportVersion2ProgramDialog = ImportVersion2Dialog<&Backend::MirelMessageManager::postImportVersion2Program,
                                                         Backend::WindowMessages::IMPORT_VERSION_2_PROGRAM_DONE.NUMBER>;
using ImportVersion2PresetDialog = ImportVersion2Dialog<&Backend::MirelMessageManager::postImportVersion2Preset,
                                                        Backend::WindowMessages::IMPORT_VERSION_2_PRESET_DONE.NUMBER>;

}
