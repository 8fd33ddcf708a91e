#pragma once

#include "Backend/core/messages/MessageManager.h"

#include <functional>

namespace Host::Cli {

// Runs actions on a desk's backend thread. Add it to the desk's master before the start.
class BackendCalls : public Backend::MessageManager {
public:
    using Action = std::function<void()>;

    using MessageManager::MessageManager;

    // [any] Runs a copy of the action after what was posted before.
    void post(const Action& action);

    bool wantMessage(unsigned int message) override;
    void handleMessage(const MSG& message) override;
    void disposeMessage(const MSG& message) override;
};

}
