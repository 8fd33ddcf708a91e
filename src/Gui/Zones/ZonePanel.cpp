#include "Gui/Zones/ZonePanel.h"

#include "Backend/core/MirelIF.h"
#include "Backend/midi/managers/ZoneManager.h"
#include "Gui/MirelGuiIF.h"

namespace Gui::Zones {

ZonePanel::ZonePanel(MirelGuiIF& gui)
    : SkinPanel(gui), m_zones(gui.getMirelIF().getZones().getZoneMap()), m_mainPanel(gui) {
    setNoSpacing(true);
}

void ZonePanel::setSelected(Backend::Zones::ZoneId id, bool selected) {
    if (auto* const zone = m_zones.find(id))
        zone->selected = selected;
}

}
