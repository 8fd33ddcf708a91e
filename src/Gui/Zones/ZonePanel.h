#pragma once

#include "Backend/midi/layers/ZoneMap.h"
#include "Gui/Utils/SkinPanel.h"
#include "Gui/Zones/MainPanel.h"
#include "Gui/Zones/ZoneGuiMessageManager.h"

namespace Gui::Zones {

// The zones of the program. [gui]
class ZonePanel : public SkinPanel {
public:
    // [backend] Takes a copy of the zones.
    explicit ZonePanel(MirelGuiIF& gui);

    // Adds the sub-panel. Once, when the window is there.
    void setupPanels() { add(&m_mainPanel); }

    MainPanel& getMainPanel() { return m_mainPanel; }
    ZoneGuiMessageManager& getMessageManager() { return m_messageManager; }

    // The zones, as the desk last told them.
    const Backend::Zones::ZoneMap& getZoneMap() const { return m_zones; }
    void setZone(const Backend::Zones::Zone& zone) { m_zones.set(zone); }
    void setZoneMap(Backend::Zones::ZoneMap zones) { m_zones = std::move(zones); }

    // A zone that isn't there is ignored.
    void setSelected(Backend::Zones::ZoneId id, bool selected);

private:
    Backend::Zones::ZoneMap m_zones;
    ZoneGuiMessageManager m_messageManager{*this};
    MainPanel m_mainPanel;
};

}
