#include "Gui/Rules/keyboards/CcCells.h"

#include "Gui/Rules/keyboards/RectContains.h"

#include <array>
#include <cstddef>

namespace Gui::CcCells {

namespace {

constexpr int CONTROLLERS = 128;
constexpr int CONTROLLER_CHANGE = 176;
constexpr int FIRST_WITHOUT_CHANNEL = 240;
constexpr int CELL_HEIGHT = 10;

struct WideCell {
    const char* label;
    int status;
};

constexpr int WIDE_COLUMNS = 4;
constexpr std::array<WideCell, CELLS - CONTROLLERS> WIDE_CELLS = {{
    {"KEY    PRESSURE", 160},
    {"PROGRAM    CHANGE", 192},
    {"CHANNEL    PRESSURE", 208},
    {"PITCH    BEND", 224},
    {"SONG    POSITION", 242},
    {"SONG    SELECT", 243},
    {"BUS    SELECT", 245},
    {"TUNE    REQUEST", 246},
    {"TIMING    TICK", 248},
    {"START    SONG", 250},
    {"CONTINUE    SONG", 251},
    {"STOP    SONG", 252},
    {"ACTIVE    SENSING", 254},
    {"SYSTEM    RESET", 255},
    {"SYSTEM    EXCLUSIVE", 240},
    {"END    OF    SYSEX", 247},
}};

const WideCell& wideCell(int cell) {
    return WIDE_CELLS[static_cast<std::size_t>(cell - CONTROLLERS)];
}

Rect controllerRect(int cell) {
    constexpr int COLUMNS = 32;
    const int left = 2 + 17 * (cell % COLUMNS);
    const int top = 2 + 13 * (cell / COLUMNS);
    return {left, top, left + 15, top + CELL_HEIGHT};
}

Rect wideRect(int cell) {
    const int left = 2 + 136 * ((cell - CONTROLLERS) % WIDE_COLUMNS);
    const int top = 55 + 14 * ((cell - CONTROLLERS) / WIDE_COLUMNS);
    return {left, top, left + 134, top + CELL_HEIGHT};
}

}

Rect getRect(int cell) {
    return cell < CONTROLLERS ? controllerRect(cell) : wideRect(cell);
}

std::string getLabel(int cell) {
    return cell < CONTROLLERS ? std::to_string(cell) : wideCell(cell).label;
}

Event getEvent(int cell) {
    return cell < CONTROLLERS ? Event{CONTROLLER_CHANGE, cell} : Event{wideCell(cell).status, 0};
}

std::optional<int> findEvent(int status, int data1) {
    const int kind = status < FIRST_WITHOUT_CHANNEL ? status & 0xf0 : status;
    if (kind == CONTROLLER_CHANGE)
        return data1 >= 0 && data1 < CONTROLLERS ? std::optional(data1) : std::nullopt;
    for (int cell = CONTROLLERS; cell < CELLS; ++cell)
        if (wideCell(cell).status == kind)
            return cell;
    return std::nullopt;
}

std::optional<int> findCell(int x, int y) {
    for (int cell = 0; cell < CELLS; ++cell)
        if (contains(getRect(cell), x, y))
            return cell;
    return std::nullopt;
}

}
