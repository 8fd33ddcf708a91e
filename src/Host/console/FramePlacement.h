// Where the desk's window is on the screen. Rectangles are those of whole windows, in pixels.
#pragma once

#include "Backend/core/settings/Rect.h"

#include <cstdint>

namespace Host::Console {

// [any] The window after a move that a message requests; the words are those of Gui::packWindowMove.
Rect moveFrame(const Rect& window, std::uintptr_t x, std::uintptr_t y);

// [any] The window at the bottom of its screen.
Rect dockFrame(const Rect& window, const Rect& workArea);

// [any] The window moved as little as possible so that the user can grab its title: some of it between the sides of the
// screen, and its top not above the screen unless the window is docked to the bottom.
Rect bringIntoReach(const Rect& window, const Rect& workArea, bool isDocked);

// [any] The window centred on a screen, its top left corner always on it.
Rect centreFrame(const Rect& window, const Rect& workArea);

}
