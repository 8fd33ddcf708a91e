#include "Platform/FileNameCase.h"

namespace Platform {

bool isSameFileName(const std::filesystem::path& left, const std::filesystem::path& right) {
    return left.native() == right.native();
}

}
