#pragma once

#include "Gui/Rules/texts/AboutText.h"

#include <windows.h>

#include <optional>

namespace Gui::Help {

// [any] When the file of the library was last written, in local time; nothing if it can't be opened.
std::optional<BuildTime> getModuleTime();

// [any] The same for any file.
std::optional<BuildTime> getFileTime(const char* path);

}
