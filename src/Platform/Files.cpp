#include "Platform/Files.h"

#include "Platform/FileNameCase.h"
#include "Platform/SystemPath.h"

#include <algorithm>

namespace Platform::Files {

namespace fs = std::filesystem;

bool createFolders(const std::string& path) {
    const auto folder = systemPath(path);
    if (!folder)
        return false;
    std::error_code error;
    fs::create_directories(*folder, error);
    return fs::is_directory(*folder, error);
}

bool removeEmptyFolder(const std::string& path) {
    const auto folder = systemPath(path);
    std::error_code error;
    return folder && fs::is_directory(*folder, error) && fs::remove(*folder, error);
}

std::vector<std::string> list(const std::string& folder, const std::string& extension) {
    std::vector<std::string> names;
    const auto path = systemPath(folder);
    const auto wanted = extension.empty() ? std::optional<fs::path>(fs::path()) : systemPath(extension);
    if (!path || !wanted)
        return names;
    std::error_code error;
    for (fs::directory_iterator entry(*path, error), end; !error && entry != end; entry.increment(error)) {
        std::error_code entryError;
        const bool isWanted = extension.empty() || isSameFileName(entry->path().extension(), *wanted);
        if (isWanted && entry->is_regular_file(entryError))
            names.push_back(utf8Path(entry->path().filename()));
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::optional<std::uintmax_t> size(const std::string& path) {
    const auto file = systemPath(path);
    std::error_code error;
    if (!file || !fs::is_regular_file(*file, error))
        return std::nullopt;
    const std::uintmax_t bytes = fs::file_size(*file, error);
    if (error)
        return std::nullopt;
    return bytes;
}

std::string join(const std::string& folder, const std::string& name) {
    constexpr char SEPARATOR = static_cast<char>(fs::path::preferred_separator);
    if (folder.empty())
        return name;
    if (folder.back() == '/' || folder.back() == SEPARATOR)
        return folder + name;
    return folder + SEPARATOR + name;
}

}
