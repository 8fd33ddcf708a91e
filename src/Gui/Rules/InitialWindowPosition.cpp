#include "Gui/Rules/InitialWindowPosition.h"

namespace Gui {

WindowPosition chooseInitialWindowPosition(const Rect& last, bool dockToBottomEdge, const Rect& host) {
    if (!dockToBottomEdge)
        return {last.left, last.top};
    const std::int32_t height = host.bottom - host.top;
    return {last.left, last.bottom - height + host.top};
}

}
