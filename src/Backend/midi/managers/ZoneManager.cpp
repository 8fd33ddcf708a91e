#include "Backend/midi/managers/ZoneManager.h"

#include "Backend/core/GuiPost.h"
#include "Backend/core/MirelIF.h"
#include "Backend/core/xml/Text.h"
#include "Backend/functions/values/RelativeFixedValue.h"
#include "Backend/functions/values/SelectType.h"
#include "Backend/midi/engine/MidiEngineMessageManager.h"
#include "Backend/midi/managers/ZoneMessages.h"

#include <algorithm>
#include <optional>

namespace Backend::Zones {

ZoneManager::ZoneManager(MirelIF& mirel, MessageManagerMaster& master)
    : m_mirel(mirel), m_messageManager(master, *this) {}

void ZoneManager::readXml(const XmlElement& element) {
    m_zones.readXml(element);
    sendAll();
}

void ZoneManager::writeXml(std::ostream& stream, int indent) const {
    m_zones.writeXml(stream, indent, false);
}

void ZoneManager::clear() {
    m_zones.clear();
    sendAll();
}

void ZoneManager::setTranspose(ZoneId id, char transpose) {
    if (Zone* zone = m_zones.find(id))
        changeTranspose(*zone, RelativeFixedValue(false, transpose));
}

void ZoneManager::selectZone(const SelectType& type) {
    Zone* current = findSelected();
    Zone* target = nullptr;
    if (type.getMode() == SelectType::SPECIFIC) {
        if (type.getValue() == Text::lowByte(type.getValue()))
            target = m_zones.find(Text::lowByte(type.getValue()));
    } else if (type.getMode() == SelectType::UP || type.getMode() == SelectType::DOWN) {
        const int step = type.getMode() == SelectType::UP ? 1 : -1;
        int id = current ? current->id : -1;
        while (!target) {
            id += step;
            if (id < 0 || id > MAX_ZONE)
                return;
            target = m_zones.find(static_cast<ZoneId>(id));
        }
    } else {
        return;
    }
    if (current)
        select(*current, false);
    if (target)
        select(*target, true);
}

void ZoneManager::selectZones(const std::vector<ZoneId>& ids) {
    for (auto& [id, zone] : m_zones)
        zone.selected = std::find(ids.begin(), ids.end(), id) != ids.end();
}

void ZoneManager::changeZoneTranspose(const SelectType& type, const RelativeFixedValue& value) {
    if (type.getMode() == SelectType::ALL) {
        for (Zone* zone : m_zones.inOrder())
            changeTranspose(*zone, value);
        return;
    }
    Zone* zone = findSelected();
    if (type.getMode() == SelectType::SPECIFIC)
        zone =
            type.getValue() == Text::lowByte(type.getValue()) ? m_zones.find(Text::lowByte(type.getValue())) : nullptr;
    if (zone)
        changeTranspose(*zone, value);
}

void ZoneManager::updateZonesFromKeys() {
    const Zone* selected = findSelected();
    const std::optional<ZoneId> remembered = selected ? std::optional(selected->id) : std::nullopt;
    for (auto& [id, zone] : m_zones) {
        zone.lowNote = Note();
        zone.highNote = Note();
    }
    for (const Zone& range : m_mirel.getZoneRanges()) {
        if (!range.lowNote.isNote() || !range.highNote.isNote())
            continue;
        Zone* zone = m_zones.find(range.id);
        if (zone)
            zone->widen(range);
        else
            m_zones.set(range);
    }
    m_zones.removeIf([](const Zone& zone) { return !zone.lowNote.isNote() || !zone.highNote.isNote(); });
    if (!remembered || !m_zones.find(*remembered))
        m_zones.selectLowest();
    sendAll();
}

Zone* ZoneManager::findSelected() {
    for (Zone* zone : m_zones.inOrder())
        if (zone->selected)
            return zone;
    return nullptr;
}

void ZoneManager::changeTranspose(Zone& zone, const RelativeFixedValue& value) {
    zone.transpose = Text::lowByte(value.applyTo(zone.transpose));
    m_mirel.getMidiEngineMessageManager().postSetZone(zone);
    postToGui(m_mirel, WindowMessages::ZONE_CHANGED, zone);
}

void ZoneManager::select(Zone& zone, bool selected) {
    zone.selected = selected;
    postToGui(m_mirel, WindowMessages::SELECTED_CHANGED, zone.id, selected);
}

void ZoneManager::sendAll() {
    m_mirel.getMidiEngineMessageManager().postSetZoneMap(m_zones);
    postToGui(m_mirel, WindowMessages::ALL_ZONES_CHANGED, m_zones);
}

}
