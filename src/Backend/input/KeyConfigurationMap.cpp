#include "Backend/input/KeyConfigurationMap.h"

#include "Backend/core/collections/HashMapIterator.h"
#include "Backend/core/xml/XmlElement.h"
#include "Backend/input/KeyListElement.h"

#include <algorithm>

namespace Backend::ComputerInput {

KeyConfiguration* KeyConfigurationMap::find(const Key& key) {
    const auto entry = m_keys.find(key);
    return entry == m_keys.end() ? nullptr : &entry->second;
}

std::unique_ptr<Component::IteratorIF<KeyConfiguration>> KeyConfigurationMap::createIterator() {
    return std::make_unique<Component::HashMapIterator<Key, KeyConfiguration>>(m_keys);
}

void KeyConfigurationMap::readXml(const XmlElement& element, MirelIF& mirel, bool& useKeyUpMod) {
    if (element.getName() != TAG)
        return;
    KeyListElement list;
    readAttributes(element, list);
    useKeyUpMod = list.useKeyUpMod;
    if (!list.merge)
        clear();
    for (auto child = element.begin(); child != element.end(); child.next())
        if (child.getName() == KeyConfiguration::TAG)
            set(KeyConfiguration(child, mirel));
}

void KeyConfigurationMap::writeKeys(std::ostream& stream, int indent, const std::vector<Key>& selected) const {
    if (selected.empty()) {
        for (const KeyConfiguration* configuration : inOrder())
            configuration->writeXml(stream, indent);
        return;
    }
    for (const Key& key : selected) {
        const auto entry = m_keys.find(key);
        (entry == m_keys.end() ? KeyConfiguration(key) : entry->second).writeXml(stream, indent);
    }
}

std::vector<Zones::Zone> KeyConfigurationMap::getZoneRanges() const {
    std::vector<Zones::Zone> ranges;
    for (const KeyConfiguration* configuration : inOrder())
        configuration->addZoneRanges(ranges);
    return ranges;
}

bool KeyConfigurationMap::operator==(const KeyConfigurationMap& other) const {
    return isContainedIn(other) && other.isContainedIn(*this);
}

bool KeyConfigurationMap::isContainedIn(const KeyConfigurationMap& other) const {
    return std::all_of(m_keys.begin(), m_keys.end(), [&other](const auto& entry) {
        if (!entry.second.hasFunction())
            return true;
        const auto match = other.m_keys.find(entry.first);
        return match != other.m_keys.end() && match->second == entry.second;
    });
}

std::vector<const KeyConfiguration*> KeyConfigurationMap::inOrder() const {
    std::vector<const KeyConfiguration*> configurations;
    for (const auto& [key, configuration] : m_keys)
        configurations.push_back(&configuration);
    std::sort(configurations.begin(), configurations.end(), [](const auto* left, const auto* right) {
        return left->getKey().toXmlString() < right->getKey().toXmlString();
    });
    return configurations;
}

}
