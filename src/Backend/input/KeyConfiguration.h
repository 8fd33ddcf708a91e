#pragma once

#include "Backend/core/xml/Attribute.h"
#include "Backend/input/ButtonConfiguration.h"
#include "Backend/input/Key.h"

namespace Backend::ComputerInput {

// What a key of the computer keyboard does in one state of the modifiers.
class KeyConfiguration : public ButtonConfiguration {
public:
    static constexpr const char* TAG = "Key";

    static auto attributes() {
        return std::tuple{
            Attribute{"id", &KeyConfiguration::m_key},
            Attribute{"global", &KeyConfiguration::m_global, true},
        };
    }

    KeyConfiguration() = default;
    explicit KeyConfiguration(const Key& key) : m_key(key) {}

    // Reads its element. No key event can reach a key without a readable id.
    KeyConfiguration(const XmlElement& element, MirelIF& mirel);

    const Key& getKey() const { return m_key; }

    // Whether, while the global keyboard is on, the key also works in other programs. Those then don't get it.
    bool isGlobal() const { return m_global; }
    void setGlobal(bool global) { m_global = global; }

    void writeXml(std::ostream& stream, int indent) const override;

    bool operator==(const KeyConfiguration& other) const {
        return haveEqualAttributes(*this, other) && hasSameFunctions(other);
    }

private:
    Key m_key;
    bool m_global = true;
};

}
