#pragma once

#include "Backend/midi/layers/ZoneMap.h"
#include "Backend/midi/managers/ZoneMessageManager.h"

#include <ostream>
#include <vector>

class RelativeFixedValue;
class SelectType;

namespace Backend {
class MessageManagerMaster;
class MirelIF;
class XmlElement;
}

namespace Backend::Zones {

// The zones of the current program. Changes reach the engine and the window. [backend]
class ZoneManager {
public:
    ZoneManager(MirelIF& mirel, MessageManagerMaster& master);

    ZoneManager(const ZoneManager&) = delete;
    ZoneManager& operator=(const ZoneManager&) = delete;

    ZoneMessageManager& getMessageManager() { return m_messageManager; }
    const ZoneMap& getZoneMap() const { return m_zones; }

    // Reads and writes a Zones element.
    void readXml(const XmlElement& element);
    void writeXml(std::ostream& stream, int indent) const;

    // Removes all zones.
    void clear();

    // Sets the transposition of one zone, in half-steps. A missing zone is ignored.
    void setTranspose(ZoneId id, char transpose);

    // Selects a single zone: the next or previous existing one, or one by its number; a number without a zone selects
    // none.
    void selectZone(const SelectType& type);

    // Selects only these zones.
    void selectZones(const std::vector<ZoneId>& ids);

    // Changes all zones, the one with a number, or otherwise the selected one.
    void changeZoneTranspose(const SelectType& type, const RelativeFixedValue& value);

    // Updates the zones to those that keys play in, with the ranges of these keys. Zones that remain keep their
    // transposition.
    void updateZonesFromKeys();

private:
    Zone* findSelected();
    void changeTranspose(Zone& zone, const RelativeFixedValue& value);
    void select(Zone& zone, bool selected);
    void sendAll();

    MirelIF& m_mirel;
    ZoneMap m_zones;
    ZoneMessageManager m_messageManager;
};

}
