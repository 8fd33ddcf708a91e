#include "Backend/input/controls/ControlMessageManager.h"

#include "Backend/core/messages/MessageTable.h"
#include "Backend/input/controls/ControlManager.h"
#include "Backend/input/controls/ControlMessages.h"
#include "Backend/midi/MirelMidiMessage.h"

namespace Backend::Controls {

using namespace Messages;
using MidiEngine::MirelMidiMessage;

namespace {

void updateControls(ControlManager& controls, const std::vector<Control>& changed, UpdateFlags flags) {
    controls.updateControls(changed, flags.notifyGui, flags.guiFlag);
}

void changeControl(ControlManager& controls, const ControlChange& change) {
    controls.changeControl(change);
}

void updateControl(ControlManager& controls, const MirelMidiMessage& message) {
    controls.updateControls(message);
}

// clang-format off
constexpr MessageTable ROWS(
    FAMILY,
    on(UPDATE_CONTROLS, &updateControls),
    on(LOAD_PRESET, &ControlManager::loadPreset),
    on(RENAME_PRESET, &ControlManager::renamePreset),
    on(DELETE_PRESET, &ControlManager::deletePreset),
    on(SAVE_PRESET, &ControlManager::savePreset),
    on(CHANGE_CONTROL, &changeControl),
    on(SEND_ALL, &ControlManager::sendAll),
    on(UPDATE_CONTROL, &updateControl),
    on(SELECT_CONTROLS, &ControlManager::selectControls));
// clang-format on

}

ControlMessageManager::ControlMessageManager(MessageManagerMaster& master, ControlManager& controls)
    : MessageManager(master), m_controls(controls) {}

void ControlMessageManager::postUpdateControls(const std::vector<Control>& controls, bool notifyGui, bool guiFlag) {
    post(UPDATE_CONTROLS, controls, UpdateFlags{notifyGui, guiFlag});
}

void ControlMessageManager::postLoadPreset(const std::string& name) {
    post(LOAD_PRESET, name);
}

void ControlMessageManager::postRenamePreset(const std::string& oldName, const std::string& newName) {
    post(RENAME_PRESET, oldName, newName);
}

void ControlMessageManager::postDeletePreset(const std::string& name) {
    post(DELETE_PRESET, name);
}

void ControlMessageManager::postSavePreset(const std::string& name, const std::vector<Cell>& selected) {
    post(SAVE_PRESET, name, selected);
}

void ControlMessageManager::postChangeControl(const ControlChange& change) {
    post(CHANGE_CONTROL, change);
}

void ControlMessageManager::postSendAll(bool autoSendOnly) {
    post(SEND_ALL, autoSendOnly);
}

bool ControlMessageManager::postUpdateControl(const MirelMidiMessage& message) {
    return m_spareUpdates.give(message, [this](auto& spare) { return tryPostOwned(UPDATE_CONTROL, spare); });
}

void ControlMessageManager::postSelectControls(const std::vector<Cell>& cells) {
    post(SELECT_CONTROLS, cells);
}

bool ControlMessageManager::wantMessage(unsigned int message) {
    return CONTROL_RANGE.contains(message);
}

void ControlMessageManager::handleMessage(const MSG& message) {
    if (message.message == UPDATE_CONTROL.NUMBER)
        m_spareUpdates.refill();
    ROWS.handle(m_controls, message);
}

void ControlMessageManager::disposeMessage(const MSG& message) {
    if (message.message == UPDATE_CONTROL.NUMBER)
        m_spareUpdates.refill();
    FAMILY.dispose(message);
}

}
