#pragma once

#include <windows.h>

#include <commdlg.h>

#include <optional>
#include <string>
#include <vector>

namespace Gui {

// Asks the user for a file. [gui]
class FileDialog {
public:
    // A kind of file: what the user reads, and its pattern ("*.bnk").
    struct Filter {
        std::string name;
        std::string pattern;
    };

    FileDialog(std::string title, const std::vector<Filter>& filters);

    // The path of a file that is there, or nothing if the user cancels.
    std::optional<std::string> open(HWND owner);

    // The path of a file to write, which the user has agreed to replace if it is there. A name without an extension
    // gets that of its filter.
    std::optional<std::string> save(HWND owner);

private:
    using Ask = BOOL(WINAPI*)(OPENFILENAMEA*);
    std::optional<std::string> run(HWND owner, DWORD flags, Ask ask);

    std::string m_title;
    std::string m_filter;     // As the system takes it: each text ends with a zero, all of it with another one.
    std::string m_extension;  // Of the first filter.
};

inline const FileDialog::Filter BANK_FILES{"Bank Files", "*.bnk"};
inline const FileDialog::Filter PROGRAM_FILES{"Program Files", "*.prg"};

}
