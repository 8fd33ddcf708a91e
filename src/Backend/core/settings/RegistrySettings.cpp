#include "Backend/core/settings/RegistrySettings.h"

#include "Backend/core/trace/FileTrace.h"

namespace Backend {

namespace {

// No system has this many ports; an index beyond is a mistake that must not use up the memory.
constexpr int MAX_PORTS = 1 << 16;

void setFlag(std::vector<bool>& flags, int index, bool flag) {
    if (index < 0 || index >= MAX_PORTS)
        return;
    const auto place = static_cast<std::size_t>(index);
    flags.resize(place + 1);
    flags[place] = flag;
}

}

void RegistrySettings::loadFromRegistry(const std::string& key) {
    const auto opened = m_store->open(key);
    if (!opened) {
        traceFile(key, "can't be opened; all settings have their defaults");
        return;
    }
    m_progDir.load(*opened);
    visitSettings(*this, [&opened](auto& setting) { setting.load(*opened); });
    m_enabledMidiInputs = getBoolVectorFromString(m_enabledMidiInputsText.get());
    m_enabledMidiOutputs = getBoolVectorFromString(m_enabledMidiOutputsText.get());
}

void RegistrySettings::saveToRegistry(const std::string& key) {
    const auto opened = m_store->open(key);
    if (!opened)
        return;
    m_enabledMidiInputsText.set(getStringFromBoolVector(m_enabledMidiInputs));
    m_enabledMidiOutputsText.set(getStringFromBoolVector(m_enabledMidiOutputs));
    visitSettings(*this, [&opened](auto& setting) { setting.save(*opened); });
    opened->save();
}

void RegistrySettings::setMidiInputEnabled(int index, bool enabled) {
    setFlag(m_enabledMidiInputs, index, enabled);
}

void RegistrySettings::setMidiOutputEnabled(int index, bool enabled) {
    setFlag(m_enabledMidiOutputs, index, enabled);
}

std::vector<bool> RegistrySettings::getBoolVectorFromString(const std::string& text) {
    std::vector<bool> flags;
    for (const char character : text)
        flags.push_back(character == 'Y' || character == 'y');
    return flags;
}

std::string RegistrySettings::getStringFromBoolVector(const std::vector<bool>& flags) {
    std::string text;
    for (const bool flag : flags)
        text += flag ? 'Y' : 'N';
    return text;
}

std::map<std::string, std::string> RegistrySettings::describe() const {
    std::map<std::string, std::string> values;
    const auto add = [&values](const auto& setting) { values[setting.getName()] = setting.describe(); };
    add(m_progDir);
    visitSettings(*this, add);
    values[m_enabledMidiInputsText.getName()] = getStringFromBoolVector(m_enabledMidiInputs);
    values[m_enabledMidiOutputsText.getName()] = getStringFromBoolVector(m_enabledMidiOutputs);
    return values;
}

}
