#pragma once

#include "Backend/core/collections/ElementCollection.h"
#include "Backend/midi/Zone.h"

#include <memory>
#include <ostream>
#include <unordered_map>
#include <vector>

namespace Backend {
class XmlElement;
}

namespace Backend::Zones {

// The attributes of the element. The flag is written but never read.
struct ZonesElement {
    static auto attributes() { return std::tuple(Attribute{"merge", &ZonesElement::merge, false, {0, 0}}); }

    bool merge = false;
};

// The zones of a program by their numbers.
class ZoneMap : public Component::ElementCollection<ZoneId, Zone> {
public:
    static constexpr const char* TAG = "Zones";

    // Null if there is no such zone.
    Zone* find(const ZoneId& id) override;

    std::unique_ptr<Component::IteratorIF<Zone>> createIterator() override;

    std::size_t size() const { return m_zones.size(); }
    auto begin() { return m_zones.begin(); }
    auto end() { return m_zones.end(); }
    auto begin() const { return m_zones.begin(); }
    auto end() const { return m_zones.end(); }

    // Adds a zone, or replaces the one of its id.
    void set(const Zone& zone) { m_zones.insert_or_assign(zone.id, zone); }

    void clear() { m_zones.clear(); }

    // Removes the zones for which this is true.
    template <class Condition>
    void removeIf(Condition condition) {
        std::erase_if(m_zones, [&condition](const auto& entry) { return condition(entry.second); });
    }

    // All zones in the order of their numbers.
    std::vector<Zone*> inOrder();

    // Reads transpositions. A zone that the element does not mention gets 0, a new one gets no note range, and the
    // lowest zone is selected afterwards.
    void readXml(const XmlElement& element);

    // Writes the element on its own lines, indented by this many tabs, with the zones in the order of their numbers.
    void writeXml(std::ostream& stream, int indent, bool merge) const;

    // Selects only the zone with the lowest number.
    void selectLowest();

private:
    static constexpr std::size_t BUCKETS = 8;

    std::unordered_map<ZoneId, Zone> m_zones{BUCKETS};
};

}
