#pragma once

#include "Platform/WindowTypes.h"

#include <string>

namespace Backend {

// What to import: from a version 2 file to a path, or to a preset with a name.
struct Version2ImportRequest {
    std::string from;
    std::string to;
    HWND notify = nullptr;  // Notified when it is done; null for nobody.
};

}
