#include "Backend/input/ComputerInputManager.h"

#include "Backend/core/GuiPost.h"
#include "Backend/core/MirelIF.h"
#include "Backend/core/files/DefaultXml.h"
#include "Backend/core/xml/ElementWriter.h"
#include "Backend/core/xml/Text.h"
#include "Backend/core/xml/XmlDocument.h"
#include "Backend/input/ComputerInputMessages.h"
#include "Backend/input/KeyListElement.h"

namespace Backend::ComputerInput {

namespace {

// Some keyboards send, for extra keys of their own, the code that is the low byte of a key without a name.
bool isNoKey(const Key& key) {
    constexpr std::int32_t LOW_BYTE = 0xff;
    return (key.getCode() & LOW_BYTE) == (Key::NO_KEY & LOW_BYTE);
}

}

ComputerInputManager::ComputerInputManager(MirelIF& mirel, MessageManagerMaster& master)
    : m_mirel(mirel), m_presets(PRESET_FOLDER), m_messageManager(master, *this) {}

void ComputerInputManager::loadDefaultMap() {
    const XmlDocument document(DEFAULT_COMPUTER_INPUT_XML, false);
    readXml(document.getRootElement());
}

void ComputerInputManager::readXml(const XmlElement& element) {
    m_currentPreset.clear();
    ProgramKeysElement list;
    readAttributes(element, list);
    const std::string preset(Text::trim(list.preset));
    if (!preset.empty()) {
        loadPreset(preset);
        return;
    }
    m_keyConfigurations.readXml(element, m_mirel, m_useKeyUpMod);
    tellMapChanged();
}

void ComputerInputManager::writeXml(std::ostream& stream, int indent, const std::vector<Key>& selected,
                                    bool writeKeys) const {
    const bool writePreset = !writeKeys && !m_currentPreset.empty() && !isChangedFromPreset(m_currentPreset);
    ProgramKeysElement list;
    list.preset = writePreset ? m_currentPreset : std::string();
    list.merge = !selected.empty();
    list.useKeyUpMod = m_useKeyUpMod;
    const ElementWriter keys(stream, indent, KeyConfigurationMap::TAG, list);
    if (!writePreset)
        m_keyConfigurations.writeKeys(stream, keys.getInnerIndent(), selected);
}

void ComputerInputManager::clear() {
    m_currentPreset.clear();
    m_keyConfigurations.clear();
    m_useKeyUpMod = false;
    tellMapChanged();
}

void ComputerInputManager::loadPreset(const std::string& name) {
    m_presets.load(name, [&](const XmlElement& element) {
        m_currentPreset = name;
        m_keyConfigurations.readXml(element, m_mirel, m_useKeyUpMod);
        tellMapChanged();
        postToGui(m_mirel, WindowMessages::PRESET_FOLDER_CHANGED);
    });
}

void ComputerInputManager::savePreset(const std::string& name, const std::vector<Key>& selected) {
    m_presets.save(name, [&](std::ostream& stream) { writeXml(stream, 0, selected, true); });
    sendPresetNames();
}

void ComputerInputManager::renamePreset(const std::string& oldName, const std::string& newName) {
    m_presets.renamePreset(oldName, newName);
    sendPresetNames();
}

void ComputerInputManager::deletePreset(const std::string& name) {
    m_presets.deletePreset(name);
    sendPresetNames();
}

void ComputerInputManager::sendPresetNames() {
    postToGui(m_mirel, WindowMessages::PRESET_NAMES_CHANGED, m_presets.getNames());
}

void ComputerInputManager::readPreset(const std::string& name, KeyConfigurationMap& keys, bool& useKeyUpMod) const {
    m_presets.load(name, [&](const XmlElement& element) { keys.readXml(element, m_mirel, useKeyUpMod); });
}

bool ComputerInputManager::isChangedFromPreset(const std::string& name) const {
    bool changed = false;
    m_presets.load(name, [&](const XmlElement& element) {
        KeyConfigurationMap keys;
        bool useKeyUpMod = false;
        keys.readXml(element, m_mirel, useKeyUpMod);
        changed = useKeyUpMod != m_useKeyUpMod || !(keys == m_keyConfigurations);
    });
    return changed;
}

void ComputerInputManager::updateKeyConfigurations(const std::vector<KeyConfiguration>& configurations,
                                                   bool notifyGui) {
    for (const KeyConfiguration& configuration : configurations)
        m_keyConfigurations.set(configuration);
    m_mirel.updateZonesFromKeys();
    if (!notifyGui)
        return;
    postToGui(m_mirel, WindowMessages::KEYS_CHANGED, configurations);
    postToGui(m_mirel, WindowMessages::CONTROL_KEYS_CHANGED);
}

void ComputerInputManager::handleKeyDown(const Key& key, bool isRepeat) {
    for (const ButtonFunction& entry : copyFunctions(key)) {
        if (isRepeat && !entry.keepSending) {
            if (entry.isEmpty())
                return;
        } else if (entry.downFunction) {
            entry.downFunction->execute();
        }
    }
}

void ComputerInputManager::handleKeyUp(const Key& key) {
    const Key lookedUp = m_useKeyUpMod ? key : Key(key.getCode(), false, false, false, false);
    for (const ButtonFunction& entry : copyFunctions(lookedUp))
        if (entry.upFunction)
            entry.upFunction->execute();
}

std::vector<ButtonFunction> ComputerInputManager::copyFunctions(const Key& key) {
    const KeyConfiguration* configuration = isNoKey(key) ? nullptr : m_keyConfigurations.find(key);
    return configuration ? configuration->getFunctions() : std::vector<ButtonFunction>();
}

void ComputerInputManager::tellMapChanged() {
    m_mirel.updateZonesFromKeys();
    postToGui(m_mirel, WindowMessages::ALL_KEYS_CHANGED, m_useKeyUpMod, m_keyConfigurations);
    postToGui(m_mirel, WindowMessages::CONTROL_KEYS_CHANGED);
}

}
