#include "Backend/input/ComputerInputMessageManager.h"

#include "Backend/core/messages/MessageManagerMaster.h"
#include "Backend/core/messages/MessagePayload.h"
#include "Backend/core/messages/MessageRanges.h"
#include "Backend/input/ComputerInputManager.h"
#include "Backend/input/ComputerInputMessages.h"

namespace Backend::ComputerInput {

using namespace Messages;

ComputerInputMessageManager::ComputerInputMessageManager(MessageManagerMaster& master,
                                                         ComputerInputManager& computerInput)
    : MessageManager(master), m_computerInput(computerInput) {}

void ComputerInputMessageManager::postUpdateKeyConfigurations(const std::vector<KeyConfiguration>& configurations,
                                                              bool notifyGui) {
    m_master.postMessage(UPDATE_KEY_CONFIGURATIONS, notifyGui, releaseCopy<LPARAM>(configurations));
}

void ComputerInputMessageManager::postSetUseKeyUpMod(bool useKeyUpMod) {
    m_master.postMessage(SET_USE_KEY_UP_MOD, useKeyUpMod, 0);
}

void ComputerInputMessageManager::postLoadPreset(const std::string& name) {
    m_master.postMessage(LOAD_PRESET, 0, releaseCopy<LPARAM>(name));
}

void ComputerInputMessageManager::postRenamePreset(const std::string& oldName, const std::string& newName) {
    m_master.postMessage(RENAME_PRESET, releaseCopy<WPARAM>(oldName), releaseCopy<LPARAM>(newName));
}

void ComputerInputMessageManager::postDeletePreset(const std::string& name) {
    m_master.postMessage(DELETE_PRESET, 0, releaseCopy<LPARAM>(name));
}

void ComputerInputMessageManager::postSavePreset(const std::string& name, const std::vector<Key>& selected) {
    m_master.postMessage(SAVE_PRESET, releaseCopy<WPARAM>(name), releaseCopy<LPARAM>(selected));
}

void ComputerInputMessageManager::postKeyDown(const Key& key, bool isRepeat) {
    m_master.postMessage(KEY_DOWN, static_cast<WPARAM>(key.getIdentity()), isRepeat);
}

void ComputerInputMessageManager::postKeyUp(const Key& key) {
    m_master.postMessage(KEY_UP, static_cast<WPARAM>(key.getIdentity()), 0);
}

bool ComputerInputMessageManager::wantMessage(unsigned int message) {
    return COMPUTER_INPUT_RANGE.contains(message);
}

void ComputerInputMessageManager::handleMessage(const MSG& message) {
    const auto takeText = [](auto word) { return *takePayload<std::string>(word); };
    const auto getKey = [&] { return Key::fromIdentity(static_cast<std::int32_t>(message.wParam)); };
    switch (message.message) {
        case UPDATE_KEY_CONFIGURATIONS:
            m_computerInput.updateKeyConfigurations(*takePayload<std::vector<KeyConfiguration>>(message.lParam),
                                                    message.wParam != 0);
            break;
        case SET_USE_KEY_UP_MOD: m_computerInput.setUseKeyUpMod(message.wParam != 0); break;
        case LOAD_PRESET: m_computerInput.loadPreset(takeText(message.lParam)); break;
        case RENAME_PRESET: m_computerInput.renamePreset(takeText(message.wParam), takeText(message.lParam)); break;
        case DELETE_PRESET: m_computerInput.deletePreset(takeText(message.lParam)); break;
        case SAVE_PRESET:
            m_computerInput.savePreset(takeText(message.wParam), *takePayload<std::vector<Key>>(message.lParam));
            break;
        case KEY_DOWN: m_computerInput.handleKeyDown(getKey(), message.lParam != 0); break;
        case KEY_UP: m_computerInput.handleKeyUp(getKey()); break;
        default: break;
    }
}

void ComputerInputMessageManager::disposeMessage(const MSG& message) {
    switch (message.message) {
        case UPDATE_KEY_CONFIGURATIONS: takePayload<std::vector<KeyConfiguration>>(message.lParam); break;
        case LOAD_PRESET:
        case DELETE_PRESET: takePayload<std::string>(message.lParam); break;
        case RENAME_PRESET:
            takePayload<std::string>(message.wParam);
            takePayload<std::string>(message.lParam);
            break;
        case SAVE_PRESET:
            takePayload<std::string>(message.wParam);
            takePayload<std::vector<Key>>(message.lParam);
            break;
        default: break;
    }
}

}
