#pragma once

#include "Backend/core/messages/MessageManager.h"
#include "Backend/input/Key.h"

#include <string>
#include <vector>

namespace Backend::ComputerInput {

class ComputerInputManager;
class KeyConfiguration;

// The way of other threads to the keys, and of every key event. Each post is carried out on the backend thread by the
// operation of ComputerInputManager of like name.
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

    // [any] Without the heap. Only the low byte of the key's code arrives.
    void postKeyDown(const Key& key, bool isRepeat);
    void postKeyUp(const Key& key);

    bool wantMessage(unsigned int message) override;
    void handleMessage(const MSG& message) override;
    void disposeMessage(const MSG& message) override;

private:
    ComputerInputManager& m_computerInput;
};

}
