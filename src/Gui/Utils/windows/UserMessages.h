// Messages between the desk's own windows, and between the main window and the host's, as offsets from WM_APP. Those
// that the backend posts are in Backend/core/WindowMessages.h.
#pragma once

#include <windows.h>

namespace Gui {

// The same offset can mean one thing inside the desk and another to the host, which gets none of the first kind.

// To panels and to the main window.
constexpr UINT UM_RETURN_FOCUS = WM_APP + 101;      // The keyboard goes back to the desk.
constexpr UINT UM_HOVER = WM_APP + 102;             // l: the window under the pointer, or null.
constexpr UINT UM_VERTICAL_TRACK = WM_APP + 103;    // As WM_VSCROLL, to the track bar that its parent got it from.
constexpr UINT UM_HORIZONTAL_TRACK = WM_APP + 104;  // As WM_HSCROLL.
constexpr UINT UM_CHILD_RESIZED = WM_APP + 105;     // To a panel: a window in it has changed its height.
constexpr UINT UM_MOUSEWHEEL = WM_APP + 109;        // Like WM_MOUSEWHEEL, to the window under the pointer.
constexpr UINT UM_DISPLAY_CREATED = WM_APP + 121;   // From the log's panel to itself.
constexpr UINT UM_MODAL_WORK_DONE = WM_APP + 123;   // Closes a dialog that waits for the desk.

// To the host's window.
constexpr UINT UM_SIZE_CHANGED = WM_APP + 105;             // w: width; l: height. Sent.
constexpr UINT UM_DOCK_CHANGED = WM_APP + 106;             // w: bool.
constexpr UINT UM_ALWAYS_ON_TOP_CHANGED = WM_APP + 107;    // w: bool.
constexpr UINT UM_SKIN_BORDER_CHANGED = WM_APP + 108;      // w: bool.
constexpr UINT UM_SYSTEM_PANEL_SHOWN = WM_APP + 110;       //
constexpr UINT UM_BANK_CHANGED = WM_APP + 111;             //
constexpr UINT UM_MIDI_THRU_CHANGED = WM_APP + 117;        // w: bool.
constexpr UINT UM_GLOBAL_KEYBOARD_CHANGED = WM_APP + 118;  // w: bool.
constexpr UINT UM_MOVE_WINDOW = WM_APP + 120;              // w: x; l: y, packed by packWindowMove.

}
