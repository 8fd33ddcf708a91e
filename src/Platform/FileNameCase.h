#pragma once

#include <filesystem>

namespace Platform {

// [any] Whether two names mean the same file in a folder, by the system's rules: Windows ignores case.
bool isSameFileName(const std::filesystem::path& left, const std::filesystem::path& right);

}
