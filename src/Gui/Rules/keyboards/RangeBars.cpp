#include "Gui/Rules/keyboards/RangeBars.h"

#include "Gui/Rules/keyboards/MusicKeys.h"
#include "Gui/Rules/keyboards/RectContains.h"

namespace Gui {

namespace {

Rect barOf(const BarRange& range, int keyboardX, int top, int bottom) {
    Rect bar = MusicKeys::getRangeBar(range.low.getNumber() + range.transpose, range.high.getNumber() + range.transpose,
                                      top, bottom);
    bar.left += keyboardX;
    bar.right += keyboardX;
    return bar;
}

}

namespace LayerBars {

namespace {

constexpr int PITCH = 16;
constexpr int TOP = 2;
constexpr int BOTTOM = 13;

}

int getHeight(int rows) {
    return rows > 0 ? PITCH * rows - 1 : 0;
}

Rect getBox(int row) {
    return {0, PITCH * row + TOP, BOX_WIDTH, PITCH * row + BOTTOM};
}

Rect getBar(int row, const BarRange& range, int keyboardX) {
    return barOf(range, keyboardX, PITCH * row + TOP, PITCH * row + BOTTOM);
}

std::optional<Hit> find(const std::vector<BarRange>& rows, int keyboardX, int x, int y) {
    int row = 0;
    for (const BarRange& range : rows) {
        if (contains(getBox(row), x, y))
            return Hit{row, true};
        if (contains(getBar(row, range, keyboardX), x, y))
            return Hit{row, false};
        ++row;
    }
    return std::nullopt;
}

}

namespace ZoneBars {

namespace {

constexpr int PITCH = 18;
constexpr int BAR_HEIGHT = 13;

}

int getHeight(int rows) {
    return rows > 0 ? PITCH * rows - (PITCH - BAR_HEIGHT) : 0;
}

Rect getBar(int row, const BarRange& range, int keyboardX) {
    return barOf(range, keyboardX, PITCH * row, PITCH * row + BAR_HEIGHT);
}

std::optional<int> find(const std::vector<BarRange>& rows, int keyboardX, int x, int y) {
    int row = 0;
    for (const BarRange& range : rows) {
        if (contains(getBar(row, range, keyboardX), x, y))
            return row;
        ++row;
    }
    return std::nullopt;
}

std::optional<int> findAtHeight(int rows, int y) {
    if (y < 0 || y / PITCH >= rows || y % PITCH >= BAR_HEIGHT)
        return std::nullopt;
    return y / PITCH;
}

}

}
