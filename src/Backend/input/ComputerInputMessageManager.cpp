#include "Backend/input/ComputerInputMessageManager.h"

#include "Backend/core/messages/MessageTable.h"
#include "Backend/input/ComputerInputManager.h"
#include "Backend/input/ComputerInputMessages.h"

namespace Backend::ComputerInput {

using namespace Messages;

namespace {

void updateKeyConfigurations(ComputerInputManager& computerInput, bool notifyGui,
                             const std::vector<KeyConfiguration>& configurations) {
    computerInput.updateKeyConfigurations(configurations, notifyGui);
}

// clang-format off
constexpr MessageTable ROWS(
    FAMILY,
    on(UPDATE_KEY_CONFIGURATIONS, &updateKeyConfigurations),
    on(SET_USE_KEY_UP_MOD, &ComputerInputManager::setUseKeyUpMod),
    on(LOAD_PRESET, &ComputerInputManager::loadPreset),
    on(RENAME_PRESET, &ComputerInputManager::renamePreset),
    on(DELETE_PRESET, &ComputerInputManager::deletePreset),
    on(SAVE_PRESET, &ComputerInputManager::savePreset),
    on(KEY_DOWN, &ComputerInputManager::handleKeyDown),
    on(KEY_UP, &ComputerInputManager::handleKeyUp));
// clang-format on

}

ComputerInputMessageManager::ComputerInputMessageManager(MessageManagerMaster& master,
                                                         ComputerInputManager& computerInput)
    : MessageManager(master), m_computerInput(computerInput) {}

void ComputerInputMessageManager::postUpdateKeyConfigurations(const std::vector<KeyConfiguration>& configurations,
                                                              bool notifyGui) {
    post(UPDATE_KEY_CONFIGURATIONS, notifyGui, configurations);
}

void ComputerInputMessageManager::postSetUseKeyUpMod(bool useKeyUpMod) {
    post(SET_USE_KEY_UP_MOD, useKeyUpMod);
}

void ComputerInputMessageManager::postLoadPreset(const std::string& name) {
    post(LOAD_PRESET, name);
}

void ComputerInputMessageManager::postRenamePreset(const std::string& oldName, const std::string& newName) {
    post(RENAME_PRESET, oldName, newName);
}

void ComputerInputMessageManager::postDeletePreset(const std::string& name) {
    post(DELETE_PRESET, name);
}

void ComputerInputMessageManager::postSavePreset(const std::string& name, const std::vector<Key>& selected) {
    post(SAVE_PRESET, name, selected);
}

void ComputerInputMessageManager::postKeyDown(const Key& key, bool isRepeat) {
    post(KEY_DOWN, key, isRepeat);
}

void ComputerInputMessageManager::postKeyUp(const Key& key) {
    post(KEY_UP, key);
}

bool ComputerInputMessageManager::wantMessage(unsigned int message) {
    return COMPUTER_INPUT_RANGE.contains(message);
}

void ComputerInputMessageManager::handleMessage(const MSG& message) {
    ROWS.handle(m_computerInput, message);
}

void ComputerInputMessageManager::disposeMessage(const MSG& message) {
    FAMILY.dispose(message);
}

}
