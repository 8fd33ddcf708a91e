#include "Gui/Utils/widgets/FileDialog.h"

#include <utility>

namespace Gui {

FileDialog::FileDialog(std::string title, const std::vector<Filter>& filters) : m_title(std::move(title)) {
    for (const Filter& filter : filters) {
        m_filter.append(filter.name).append(1, '\0');
        m_filter.append(filter.pattern).append(1, '\0');
    }
    if (!filters.empty())
        m_extension = filters.front().pattern.substr(filters.front().pattern.rfind('.') + 1);
}

std::optional<std::string> FileDialog::open(HWND owner) {
    return run(owner, OFN_FILEMUSTEXIST, GetOpenFileNameA);
}

std::optional<std::string> FileDialog::save(HWND owner) {
    return run(owner, OFN_OVERWRITEPROMPT, GetSaveFileNameA);
}

std::optional<std::string> FileDialog::run(HWND owner, DWORD flags, Ask ask) {
    constexpr std::size_t LONGEST_PATH = 4096;
    std::string path(LONGEST_PATH, '\0');
    OPENFILENAMEA dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = owner;
    dialog.lpstrFilter = m_filter.c_str();
    dialog.nFilterIndex = 1;
    dialog.lpstrFile = path.data();
    dialog.nMaxFile = static_cast<DWORD>(path.size());
    dialog.lpstrTitle = m_title.c_str();
    dialog.lpstrDefExt = m_extension.c_str();
    dialog.Flags = flags | OFN_EXPLORER | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    if (!ask(&dialog))
        return std::nullopt;
    path.resize(path.find('\0'));
    return path;
}

}
