#pragma once

#include <vector>

namespace Gui {

// [any] The item of a list that one notch of the wheel selects: the next enabled one after (down) or before `selected`
// (-1 for none). -1 if there is none; the list does not wrap.
int nextEnabledItem(const std::vector<bool>& enabled, int selected, bool down);

}
