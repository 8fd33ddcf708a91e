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
    // A kind of file: the text for the user, and its pattern ("*.bnk").
    struct Filter {
        std::string name;
        std::string pattern;
    };

    FileDialog(std::string title, const std::vector<Filter>& filters);

    // The path of an existing file; nothing if the user cancels.
    std::optional<std::string> open(HWND owner);

    // The path of a file to write; if it exists, the user has agreed to replace it. A name without an extension gets
    // its filter's.
    std::optional<std::string> save(HWND owner);

private:
    using Ask = BOOL(WINAPI*)(OPENFILENAMEA*);
    std::optional<std::string> run(HWND owner, DWORD flags, Ask ask);

    std::string m_title;
    std::string m_filter;     // As the system takes it: each text ends with a zero, and all of it with another one.
    std::string m_extension;  // Of the first filter.
};

inline const FileDialog::Filter BANK_FILES{"Bank Files", "*.bnk"};
inline const FileDialog::Filter PROGRAM_FILES{"Program Files", "*.prg"};

}
