#include "Platform/FileNameCase.h"

#include <windows.h>

namespace Platform {

bool isSameFileName(const std::filesystem::path& left, const std::filesystem::path& right) {
    return CompareStringOrdinal(left.c_str(), -1, right.c_str(), -1, TRUE) == CSTR_EQUAL;
}

}
