#pragma once

#include "Backend/core/collections/ElementCollection.h"
#include "Backend/input/KeyConfiguration.h"

#include <istream>
#include <memory>
#include <ostream>
#include <string>
#include <unordered_map>
#include <vector>

namespace Backend::ComputerInput {

// The configured keys of a program.
class KeyConfigurationMap : public Component::ElementCollection<Key, KeyConfiguration> {
public:
    static constexpr const char* TAG = "ComputerInput";

    // Null for a key without a configuration.
    KeyConfiguration* find(const Key& key) override;

    std::unique_ptr<Component::IteratorIF<KeyConfiguration>> createIterator() override;

    std::size_t size() const { return m_keys.size(); }
    bool empty() const { return m_keys.empty(); }
    void clear() { m_keys.clear(); }

    // Adds a configuration, or replaces its key's.
    void set(const KeyConfiguration& configuration) { m_keys.insert_or_assign(configuration.getKey(), configuration); }

    // Takes over the Key elements of a ComputerInput element, and its flag. Unless the element says that it should be
    // merged, it replaces everything. Any other element is ignored.
    void readXml(const XmlElement& element, MirelIF& mirel, bool& useKeyUpMod);

    // Writes the Key elements on their own lines, indented by this many tabs, in the order of their ids: all, or the
    // selected ones. A selected key without a configuration is written as one that does nothing.
    void writeKeys(std::ostream& stream, int indent, const std::vector<Key>& selected) const;

    // The notes of all keys by zone.
    std::vector<Zones::Zone> getZoneRanges() const;

    // Whether both do the same. Keys that do nothing don't count.
    bool operator==(const KeyConfigurationMap& other) const;

private:
    static constexpr std::size_t BUCKETS = 8;

    bool isContainedIn(const KeyConfigurationMap& other) const;
    std::vector<const KeyConfiguration*> inOrder() const;

    std::unordered_map<Key, KeyConfiguration> m_keys{BUCKETS};
};

}
