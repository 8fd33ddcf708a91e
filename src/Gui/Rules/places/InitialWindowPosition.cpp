#include "Gui/Rules/places/InitialWindowPosition.h"

#include <limits>

namespace Gui {

WindowPosition chooseInitialWindowPosition(const Rect& last, bool dockToBottomEdge, const Rect& host) {
    if (!dockToBottomEdge)
        return {last.left, last.top};
    const std::int64_t height = std::int64_t{host.bottom} - host.top;
    const std::int64_t top = last.bottom - height + host.top;
    if (top < 0 || top > std::numeric_limits<std::int32_t>::max())
        return {};
    return {last.left, static_cast<std::int32_t>(top)};
}

}
