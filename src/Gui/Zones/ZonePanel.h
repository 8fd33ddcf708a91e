#pragma once

#include "Backend/midi/layers/ZoneMap.h"
#include "Gui/Rules/selection/OrderedSelection.h"
#include "Gui/Utils/SkinPanel.h"
#include "Gui/Zones/MainPanel.h"
#include "Gui/Zones/ZoneGuiMessageManager.h"

namespace Gui::Zones {

// The zones of the program. [gui]
class ZonePanel : public SkinPanel {
public:
    // [backend] Takes a copy of the zones.
    explicit ZonePanel(MirelGuiIF& gui);

    // Adds the sub-panel. Call it once, when the window exists.
    void setupPanels() { add(&m_mainPanel); }

    MainPanel& getMainPanel() { return m_mainPanel; }
    ZoneGuiMessageManager& getMessageManager() { return m_messageManager; }

    // The copy of the desk's zones, and the one whose row is marked. The marks are of the kind DATA.
    const Backend::Zones::ZoneMap& getZoneMap() const { return m_zones; }
    Selection<Backend::Zones::ZoneId>& getSelection() { return m_selection; }

    // The zone that the desk selected last; -1 if there is none.
    Backend::Zones::ZoneId getLastSelected() const { return m_selectedZone; }

    // Take over the desk's changes, and repaint the rows.
    void setZone(const Backend::Zones::Zone& zone);
    void setZoneMap(const Backend::Zones::ZoneMap& zones);

    // Makes this zone's row the only marked one, whatever selected is. A missing zone is ignored.
    void setSelected(Backend::Zones::ZoneId id, bool selected);

private:
    void rebuildRows();

    Backend::Zones::ZoneMap m_zones;
    OrderedSelection<Backend::Zones::ZoneId> m_selection;
    Backend::Zones::ZoneId m_selectedZone = -1;
    ZoneGuiMessageManager m_messageManager{*this};
    MainPanel m_mainPanel;
};

}
