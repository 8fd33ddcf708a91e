#pragma once

#include "Backend/core/messages/MessageManager.h"
#include "Backend/input/Key.h"

#include <string>
#include <vector>

namespace Backend::ComputerInput {

class ComputerInputManager;
class KeyConfiguration;

// How other threads, and every key event, reach the keys. The operation of ComputerInputManager with the same name
// carries out each post on the backend thread.
class ComputerInputMessageManager : public MessageManager {
public:
    ComputerInputMessageManager(MessageManagerMaster& master, ComputerInputManager& computerInput);

    // [any]
    void postUpdateKeyConfigurations(const std::vector<KeyConfiguration>& configurations, bool notifyGui);
    void postSetUseKeyUpMod(bool useKeyUpMod);
    void postLoadPreset(const std::string& name);
    void postRenamePreset(const std::string& oldName, const std::string& newName);
    void postDeletePreset(const std::string& name);
    void postSavePreset(const std::string& name, const std::vector<Key>& selected);

    // [any] Allocates nothing. Only the low byte of the key's code arrives.
    void postKeyDown(const Key& key, bool isRepeat);
    void postKeyUp(const Key& key);

    bool wantMessage(unsigned int message) override;
    void handleMessage(const MSG& message) override;
    void disposeMessage(const MSG& message) override;

private:
    ComputerInputManager& m_computerInput;
};

}
