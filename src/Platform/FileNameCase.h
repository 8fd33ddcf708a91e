#pragma once

#include <filesystem>

namespace Platform {

// [any] Whether two names mean the same file of a folder, as the system's file names go: on Windows whatever their
// case.
bool isSameFileName(const std::filesystem::path& left, const std::filesystem::path& right);

}
