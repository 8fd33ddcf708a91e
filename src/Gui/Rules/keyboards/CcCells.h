// The grid of controllers and other events: which event each cell stands for, and where the cell is, in pixels of the
// grid's client area.
#pragma once

#include "Backend/core/settings/Rect.h"

#include <optional>
#include <string>

namespace Gui::CcCells {

inline constexpr int CELLS = 144;
inline constexpr int WIDTH = 546;
inline constexpr int HEIGHT = 112;

// The event of a cell: its status without a channel and, for a controller, its number in data1, otherwise 0.
struct Event {
    int status;
    int data1;

    bool operator==(const Event&) const = default;
};

// For a cell from 0 to 143; the first 128 are the controllers.
Rect getRect(int cell);
std::string getLabel(int cell);
Event getEvent(int cell);

// The cell of an event, whatever its channel. Nothing for notes and for anything that is not an event or a controller.
std::optional<int> findEvent(int status, int data1);

// The cell at a point, or nothing between the cells.
std::optional<int> findCell(int x, int y);

}
