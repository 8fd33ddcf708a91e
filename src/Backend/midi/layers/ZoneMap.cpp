#include "Backend/midi/layers/ZoneMap.h"

#include "Backend/core/collections/HashMapIterator.h"
#include "Backend/core/xml/ElementWriter.h"

#include <algorithm>
#include <map>

namespace Backend::Zones {

Zone* ZoneMap::find(const ZoneId& id) {
    const auto entry = m_zones.find(id);
    return entry == m_zones.end() ? nullptr : &entry->second;
}

std::unique_ptr<Component::IteratorIF<Zone>> ZoneMap::createIterator() {
    return std::make_unique<Component::HashMapIterator<ZoneId, Zone>>(m_zones);
}

std::vector<Zone*> ZoneMap::inOrder() {
    std::vector<Zone*> zones;
    for (auto& [id, zone] : m_zones)
        zones.push_back(&zone);
    std::sort(zones.begin(), zones.end(), [](const Zone* left, const Zone* right) { return left->id < right->id; });
    return zones;
}

void ZoneMap::readXml(const XmlElement& element) {
    for (auto& [id, zone] : m_zones)
        zone.transpose = 0;
    for (auto child = element.begin(); child != element.end(); child.next()) {
        if (child.getName() != Zone::TAG)
            continue;
        Zone zone;
        readAttributes(child, zone);
        m_zones.try_emplace(zone.id, zone).first->second.transpose = zone.transpose;
    }
    selectLowest();
}

void ZoneMap::selectLowest() {
    Zone* lowest = nullptr;
    for (auto& [id, zone] : m_zones) {
        zone.selected = false;
        if (!lowest || id < lowest->id)
            lowest = &zone;
    }
    if (lowest)
        lowest->selected = true;
}

void ZoneMap::writeXml(std::ostream& stream, int indent, bool merge) const {
    const ElementWriter zones(stream, indent, TAG, ZonesElement{.merge = merge});
    for (const auto& [id, zone] : std::map<ZoneId, Zone>(m_zones.begin(), m_zones.end()))
        zones.writeEmpty(Zone::TAG, zone);
}

}
