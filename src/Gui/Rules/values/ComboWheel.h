#pragma once

#include <vector>

namespace Gui {

// [any] Which item of a list one turn of the wheel selects: the next enabled one after `selected` (-1 for none) going
// down the list, or before it. -1 if there is none; the list has no way round its ends.
int nextEnabledItem(const std::vector<bool>& enabled, int selected, bool down);

}
