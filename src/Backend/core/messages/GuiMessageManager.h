#pragma once

#include "Platform/WindowTypes.h"

namespace Backend {

// One family of messages to the main window.
class GuiMessageManager {
public:
    virtual ~GuiMessageManager() = default;

    // [gui] Whether this object handles messages of this number.
    virtual bool wantMessage(unsigned int message) = 0;

    // [gui] Carries out one message and owns its payload. An unknown number is ignored.
    virtual void handleMessage(unsigned int message, WPARAM wParam, LPARAM lParam) = 0;
};

}
