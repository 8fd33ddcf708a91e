#pragma once

#include "Backend/core/settings/Rect.h"

namespace Gui {

// [any] Where a window of this size stands with its middle over that of another one, moved as little as puts all of it
// inside the screen. One that is larger than the screen begins at its top left corner.
Rect placeSheet(const Rect& sheet, const Rect& around, const Rect& screen);

}
