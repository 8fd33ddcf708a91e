#include "Backend/input/controls/ControlMessageManager.h"

#include "Backend/core/messages/MessageManagerMaster.h"
#include "Backend/core/messages/MessagePayload.h"
#include "Backend/core/messages/MessageRanges.h"
#include "Backend/input/controls/ControlManager.h"
#include "Backend/input/controls/ControlMessages.h"
#include "Backend/midi/MirelMidiMessage.h"

namespace Backend::Controls {

using namespace Messages;
using MidiEngine::MirelMidiMessage;

namespace {

// Two flags in one word, each a half of it.
constexpr LPARAM NOTIFY_GUI = 0xffff;
constexpr LPARAM GUI_FLAG = 0xffff0000;

LPARAM packFlags(bool notifyGui, bool guiFlag) {
    return (notifyGui ? 1 : 0) | (guiFlag ? 1 << 16 : 0);
}

}

ControlMessageManager::ControlMessageManager(MessageManagerMaster& master, ControlManager& controls)
    : MessageManager(master), m_controls(controls) {}

void ControlMessageManager::postUpdateControls(const std::vector<Control>& controls, bool notifyGui, bool guiFlag) {
    m_master.postMessage(UPDATE_CONTROLS, releaseCopy<WPARAM>(controls), packFlags(notifyGui, guiFlag));
}

void ControlMessageManager::postLoadPreset(const std::string& name) {
    m_master.postMessage(LOAD_PRESET, 0, releaseCopy<LPARAM>(name));
}

void ControlMessageManager::postRenamePreset(const std::string& oldName, const std::string& newName) {
    m_master.postMessage(RENAME_PRESET, releaseCopy<WPARAM>(oldName), releaseCopy<LPARAM>(newName));
}

void ControlMessageManager::postDeletePreset(const std::string& name) {
    m_master.postMessage(DELETE_PRESET, 0, releaseCopy<LPARAM>(name));
}

void ControlMessageManager::postSavePreset(const std::string& name, const std::vector<Cell>& selected) {
    m_master.postMessage(SAVE_PRESET, releaseCopy<WPARAM>(name), releaseCopy<LPARAM>(selected));
}

void ControlMessageManager::postChangeControl(const ControlChange& change) {
    m_master.postMessage(CHANGE_CONTROL, releaseCopy<WPARAM>(change), 0);
}

void ControlMessageManager::postSendAll(bool autoSendOnly) {
    m_master.postMessage(SEND_ALL, 0, autoSendOnly);
}

bool ControlMessageManager::postUpdateControl(const MirelMidiMessage& message) {
    auto copy = std::make_unique<MirelMidiMessage>(message);
    if (!m_master.tryPostMessage(UPDATE_CONTROL, reinterpret_cast<WPARAM>(copy.get()), 0))
        return false;
    static_cast<void>(copy.release());
    return true;
}

void ControlMessageManager::postSelectControls(const std::vector<Cell>& cells) {
    m_master.postMessage(SELECT_CONTROLS, releaseCopy<WPARAM>(cells), 0);
}

bool ControlMessageManager::wantMessage(unsigned int message) {
    return CONTROL_RANGE.contains(message);
}

void ControlMessageManager::handleMessage(const MSG& message) {
    const auto takeText = [](auto word) { return *takePayload<std::string>(word); };
    switch (message.message) {
        case UPDATE_CONTROLS:
            m_controls.updateControls(*takePayload<std::vector<Control>>(message.wParam),
                                      (message.lParam & NOTIFY_GUI) != 0, (message.lParam & GUI_FLAG) != 0);
            break;
        case LOAD_PRESET: m_controls.loadPreset(takeText(message.lParam)); break;
        case RENAME_PRESET: m_controls.renamePreset(takeText(message.wParam), takeText(message.lParam)); break;
        case DELETE_PRESET: m_controls.deletePreset(takeText(message.lParam)); break;
        case SAVE_PRESET:
            m_controls.savePreset(takeText(message.wParam), *takePayload<std::vector<Cell>>(message.lParam));
            break;
        case CHANGE_CONTROL: m_controls.changeControl(*takePayload<ControlChange>(message.wParam)); break;
        case SEND_ALL: m_controls.sendAll(message.lParam != 0); break;
        case UPDATE_CONTROL: m_controls.updateControls(*takePayload<MirelMidiMessage>(message.wParam)); break;
        case SELECT_CONTROLS: m_controls.selectControls(*takePayload<std::vector<Cell>>(message.wParam)); break;
        default: break;
    }
}

void ControlMessageManager::disposeMessage(const MSG& message) {
    switch (message.message) {
        case UPDATE_CONTROLS: takePayload<std::vector<Control>>(message.wParam); break;
        case LOAD_PRESET:
        case DELETE_PRESET: takePayload<std::string>(message.lParam); break;
        case RENAME_PRESET:
            takePayload<std::string>(message.wParam);
            takePayload<std::string>(message.lParam);
            break;
        case SAVE_PRESET:
            takePayload<std::string>(message.wParam);
            takePayload<std::vector<Cell>>(message.lParam);
            break;
        case CHANGE_CONTROL: takePayload<ControlChange>(message.wParam); break;
        case UPDATE_CONTROL: takePayload<MirelMidiMessage>(message.wParam); break;
        case SELECT_CONTROLS: takePayload<std::vector<Cell>>(message.wParam); break;
        default: break;
    }
}

}
