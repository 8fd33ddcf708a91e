#include "Backend/core/xml/FileNames.h"

#include <algorithm>

namespace Backend {

bool isUsableFileName(std::string_view name) {
    return !name.empty() && name.find_first_of("/\\:*?\"<>|") == std::string_view::npos &&
           std::none_of(name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; });
}

}
