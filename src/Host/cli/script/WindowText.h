#pragma once

#include "Platform/WindowTypes.h"

#include <string>

namespace Host::Cli {

// [any] What a notification to the main window carries, in words; empty if that is nothing. The payload is destroyed.
std::string takeWindowText(UINT message, WPARAM wParam, LPARAM lParam);

// [any] Whether a notification only brings names for the window's menus, of which a script has nothing to print.
bool isListForMenus(UINT message);

}
