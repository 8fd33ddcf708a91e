#pragma once

#include "Backend/core/settings/Rect.h"

namespace Gui {

// [any] Where to put a window of this size so that it is centred over another one, moved as little as possible to be
// fully on the screen. One larger than the screen starts at the screen's top left corner.
Rect placeSheet(const Rect& sheet, const Rect& around, const Rect& screen);

}
