#pragma once

#include "Platform/WindowTypes.h"

#include <string>

namespace Host::Cli {

// [any] What a notification to the main window carries, in words; empty if that is nothing. The payload is destroyed.
std::string takeWindowText(UINT message, WPARAM wParam, LPARAM lParam);

}
