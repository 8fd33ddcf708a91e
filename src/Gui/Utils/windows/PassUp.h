#pragma once

#include <windows.h>

#include <optional>

namespace Gui {

// [gui] Passes what is for the main window on to a window's parent: keys and left clicks at once; by posting, a
// keyboard focus that is returned or came by activation, and what the pointer is over. The result is what the window's
// procedure must answer; nothing if the message is of another kind and stays with the window.
std::optional<LRESULT> passUp(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// [gui] Passes on to the window that a track bar's notification or a control's command comes from, as named by
// WM_VSCROLL, WM_HSCROLL and WM_COMMAND: the first two as UM_VERTICAL_TRACK and UM_HORIZONTAL_TRACK. Nothing as above,
// also if no window is named.
std::optional<LRESULT> passDown(UINT message, WPARAM wParam, LPARAM lParam);

}
