#include "Gui/Rules/values/ComboWheel.h"

namespace Gui {

int nextEnabledItem(const std::vector<bool>& enabled, int selected, bool down) {
    const int count = static_cast<int>(enabled.size());
    const int step = down ? 1 : -1;
    for (int index = selected + step; index >= 0 && index < count; index += step)
        if (enabled[static_cast<std::size_t>(index)])
            return index;
    return -1;
}

}
