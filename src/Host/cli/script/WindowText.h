#pragma once

#include "Platform/WindowTypes.h"

#include <string>

namespace Host::Cli {

// [any] Describes the content of a notification to the main window; empty if it has none. Destroys the payload.
std::string takeWindowText(UINT message, WPARAM wParam, LPARAM lParam);

// [any] Whether a notification only carries names for the window's menus, of which a script has nothing to print.
bool isListForMenus(UINT message);

}
