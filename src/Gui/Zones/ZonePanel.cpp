#include "Gui/Zones/ZonePanel.h"

#include "Backend/core/MirelIF.h"
#include "Backend/midi/managers/ZoneManager.h"
#include "Gui/MirelGuiIF.h"

#include <optional>
#include <utility>
#include <vector>

namespace Gui::Zones {

ZonePanel::ZonePanel(MirelGuiIF& gui)
    : SkinPanel(gui), m_zones(gui.getMirelIF().getZones().getZoneMap()), m_mainPanel(gui) {
    setNoSpacing(true);
    rebuildRows();
}

// The marked row stays marked if its zone still exists; otherwise the first one is marked.
void ZonePanel::rebuildRows() {
    const auto marked = m_selection.firstSelected(SelectionKind::DATA);
    std::vector<Backend::Zones::ZoneId> ids;
    for (const auto& [id, zone] : m_zones)
        ids.push_back(id);
    const bool isThere = marked && m_zones.find(*marked);
    const auto toMark = isThere || ids.empty() ? marked : std::optional(ids.front());
    m_selection.setItems(std::move(ids));
    if (toMark)
        m_selection.setSelected(*toMark, true, SelectionKind::DATA);
    m_mainPanel.refreshRows();
}

void ZonePanel::setZone(const Backend::Zones::Zone& zone) {
    m_zones.set(zone);
    rebuildRows();
}

void ZonePanel::setZoneMap(const Backend::Zones::ZoneMap& zones) {
    m_zones = zones;
    rebuildRows();
}

void ZonePanel::setSelected(Backend::Zones::ZoneId id, bool selected) {
    auto* const zone = m_zones.find(id);
    if (!zone)
        return;
    zone->selected = selected;
    m_selection.selectOnly(id, true, SelectionKind::DATA);
    m_selectedZone = id;
    m_mainPanel.refreshRows();
}

}
