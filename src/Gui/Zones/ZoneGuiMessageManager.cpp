#include "Gui/Zones/ZoneGuiMessageManager.h"

#include "Backend/core/messages/MessageTable.h"
#include "Backend/midi/managers/ZoneMessages.h"
#include "Gui/Zones/ZonePanel.h"

namespace Gui::Zones {

using namespace Backend;
using namespace Backend::Zones::WindowMessages;

namespace {

// clang-format off
constexpr MessageTable ROWS(
    FAMILY,
    on(ZONE_CHANGED, &ZonePanel::setZone),
    on(ALL_ZONES_CHANGED, &ZonePanel::setZoneMap),
    on(SELECTED_CHANGED, &ZonePanel::setSelected));
// clang-format on

}

bool ZoneGuiMessageManager::wantMessage(unsigned int message) {
    return ZONE_GUI_RANGE.contains(message);
}

void ZoneGuiMessageManager::handleMessage(unsigned int message, WPARAM wParam, LPARAM lParam) {
    ROWS.handle(m_panel, message, wParam, lParam);
}

}
