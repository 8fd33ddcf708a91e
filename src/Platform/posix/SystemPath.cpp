#include "Platform/SystemPath.h"

namespace Platform {

std::optional<std::filesystem::path> systemPath(const std::string& path) {
    if (path.empty() || path.find('\0') != std::string::npos)
        return std::nullopt;
    return std::filesystem::path(path);
}

std::string utf8Path(const std::filesystem::path& path) {
    return path.native();
}

}
