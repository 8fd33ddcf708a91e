#include "Gui/Zones/ZoneGuiMessageManager.h"

#include "Backend/core/messages/MessagePayload.h"
#include "Backend/core/messages/MessageRanges.h"
#include "Backend/midi/managers/ZoneMessages.h"
#include "Gui/Zones/ZonePanel.h"

namespace Gui::Zones {

using namespace Backend;
using namespace Backend::Zones::WindowMessages;

bool ZoneGuiMessageManager::wantMessage(unsigned int message) {
    return ZONE_GUI_RANGE.contains(message);
}

void ZoneGuiMessageManager::handleMessage(unsigned int message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case ZONE_CHANGED:
            if (const auto zone = takePayload<Backend::Zones::Zone>(lParam))
                m_panel.setZone(*zone);
            break;
        case ALL_ZONES_CHANGED:
            if (const auto zones = takePayload<Backend::Zones::ZoneMap>(lParam))
                m_panel.setZoneMap(*zones);
            break;
        case SELECTED_CHANGED: m_panel.setSelected(static_cast<Backend::Zones::ZoneId>(wParam), lParam != 0); break;
        default: break;
    }
}

}
