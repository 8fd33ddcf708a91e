#pragma once

#include "Backend/core/messages/MessageManager.h"
#include "Backend/midi/Cell.h"
#include "Backend/midi/PassingEvents.h"
#include "Backend/midi/SpareMessages.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Backend::Controls {

class Control;
class ControlManager;

// A new value of a control.
struct ControlChange {
    Cell cell;
    std::int32_t value = 0;
    bool updateGui = false;
};

// How other threads reach the controls. The operation of ControlManager with the same name carries out each post on the
// backend thread.
class ControlMessageManager : public MessageManager, public MidiEngine::PassingEvents {
public:
    ControlMessageManager(MessageManagerMaster& master, ControlManager& controls);

    // [any] guiFlag is passed on to the window with its notification.
    void postUpdateControls(const std::vector<Control>& controls, bool notifyGui, bool guiFlag);
    void postLoadPreset(const std::string& name);
    void postRenamePreset(const std::string& oldName, const std::string& newName);
    void postDeletePreset(const std::string& name);
    void postSavePreset(const std::string& name, const std::vector<Cell>& selected);
    void postChangeControl(const ControlChange& change);
    void postSendAll(bool autoSendOnly);
    void postSelectControls(const std::vector<Cell>& cells);

    // [player, rt, under the engine's lock] Controls that send this event follow it.
    [[nodiscard]] bool postUpdateControl(const MidiEngine::MirelMidiMessage& message) override;

    bool wantMessage(unsigned int message) override;
    void handleMessage(const MSG& message) override;
    void disposeMessage(const MSG& message) override;

private:
    ControlManager& m_controls;
    MidiEngine::SpareMessages m_spareUpdates;
};

}
