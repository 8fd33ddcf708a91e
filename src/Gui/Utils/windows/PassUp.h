#pragma once

#include <windows.h>

#include <optional>

namespace Gui {

// [gui] Hands on to a window's parent what is for the main window: keys and left clicks at once, and, posted, the
// keyboard that is given back or came by activation, and what the pointer is over. The result is what the window's
// procedure answers; nothing if the message is of another kind and stays with the window.
std::optional<LRESULT> passUp(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// [gui] Hands on to the window that a track bar's notification or a control's command comes from, as WM_VSCROLL,
// WM_HSCROLL and WM_COMMAND name it: the first two as UM_VERTICAL_TRACK and UM_HORIZONTAL_TRACK. Nothing as above, also
// if no window is named.
std::optional<LRESULT> passDown(UINT message, WPARAM wParam, LPARAM lParam);

}
