#include "Gui/ComputerInput/ComputerInputPanel.h"

#include "Backend/core/MirelIF.h"
#include "Backend/functions/Functions.h"
#include "Backend/input/ComputerInputManager.h"
#include "Gui/MirelGuiIF.h"
#include "Gui/Utils/windows/KeyboardHookProxy.h"

namespace Gui::ComputerInput {

using Backend::ComputerInput::KeyConfiguration;
using Backend::ComputerInput::KeyConfigurationMap;
using Backend::FunctionManagement::Function;
using Backend::FunctionManagement::Functions::ChangeGlobalKeyboard;

namespace {

KeyboardHookProxy::Action actionOf(const OnOffToggle& state) {
    switch (state.getState()) {
        case OnOffToggle::ON: return KeyboardHookProxy::on;
        case OnOffToggle::OFF: return KeyboardHookProxy::off;
        default: return KeyboardHookProxy::toggle;
    }
}

void addControlKey(const KeyboardHookProxy& hook, const Key& key, const Function* function, bool onKeyUp) {
    if (const auto* const change = dynamic_cast<const ChangeGlobalKeyboard*>(function))
        hook.addControlKey(key, onKeyUp, actionOf(change->getOnOffToggle()));
}

}

ComputerInputPanel::ComputerInputPanel(MirelGuiIF& gui)
    : SkinPanel(gui),
      m_keys(gui.getMirelIF().getComputerInput().getKeyConfigurations()),
      m_useKeyUpMod(gui.getMirelIF().getComputerInput().getUseKeyUpMod()),
      m_presetNames(gui.getMirelIF().getComputerInput().getPresets().getNames()),
      m_mainPanel(gui),
      m_settingsPanel(gui) {}

void ComputerInputPanel::setupPanels() {
    add(&m_mainPanel);
    add(&m_settingsPanel);
    m_settingsPanel.setupPanels();
}

void ComputerInputPanel::load() {
    updateExcludedKeys();
    updateControlKeys();
}

void ComputerInputPanel::setKeys(const std::vector<KeyConfiguration>& keys) {
    const KeyboardHookProxy& hook = gui().getKeyboardHookProxy();
    for (const KeyConfiguration& key : keys) {
        m_keys.set(key);
        hook.setExcludeKey(key.getKey(), !key.isGlobal());
    }
    m_settingsPanel.refresh();
}

void ComputerInputPanel::setAllKeys(KeyConfigurationMap keys, bool useKeyUpMod) {
    m_keys = std::move(keys);
    m_useKeyUpMod = useKeyUpMod;
    load();
    m_settingsPanel.refresh();
}

void ComputerInputPanel::updateExcludedKeys() {
    const KeyboardHookProxy& hook = gui().getKeyboardHookProxy();
    hook.clearExclude();
    const auto keys = m_keys.createIterator();
    while (keys->hasNext()) {
        const KeyConfiguration& key = *keys->next();
        hook.setExcludeKey(key.getKey(), !key.isGlobal());
    }
}

void ComputerInputPanel::updateControlKeys() {
    const KeyboardHookProxy& hook = gui().getKeyboardHookProxy();
    hook.clearControlKeys();
    const auto keys = m_keys.createIterator();
    while (keys->hasNext()) {
        const KeyConfiguration& key = *keys->next();
        for (const ButtonFunction& entry : key.getFunctions()) {
            addControlKey(hook, key.getKey(), entry.downFunction.get(), false);
            addControlKey(hook, key.getKey(), entry.upFunction.get(), true);
        }
    }
}

void ComputerInputPanel::addPreset(const std::string& name, bool) {
    gui().getMirelIF().getComputerInputMessageManager().postSavePreset(name, {});
}

void ComputerInputPanel::editPreset(const std::string& oldName, const std::string& newName) {
    gui().getMirelIF().getComputerInputMessageManager().postRenamePreset(oldName, newName);
}

void ComputerInputPanel::deletePreset(const std::string& name) {
    gui().getMirelIF().getComputerInputMessageManager().postDeletePreset(name);
}

}
