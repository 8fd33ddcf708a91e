#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace Platform {

// [any] A UTF-8 path as the file system's own type. Nothing for text that can't be a path: empty, with a zero byte or,
// where paths are Unicode, not UTF-8.
std::optional<std::filesystem::path> systemPath(const std::string& path);

// [any] The reverse of systemPath.
std::string utf8Path(const std::filesystem::path& path);

}
