#include "Gui/Rules/places/SheetPlacement.h"

#include <algorithm>

namespace Gui {

namespace {

int place(int length, int aroundStart, int aroundEnd, int screenStart, int screenEnd) {
    const int centred = aroundStart + (aroundEnd - aroundStart - length) / 2;
    return std::max(screenStart, std::min(centred, screenEnd - length));
}

}

Rect placeSheet(const Rect& sheet, const Rect& around, const Rect& screen) {
    const int width = sheet.right - sheet.left;
    const int height = sheet.bottom - sheet.top;
    const int left = place(width, around.left, around.right, screen.left, screen.right);
    const int top = place(height, around.top, around.bottom, screen.top, screen.bottom);
    return {left, top, left + width, top + height};
}

}
