#pragma once

#include "Platform/WindowTypes.h"

namespace Backend {

// One family of messages to the main window.
class GuiMessageManager {
public:
    virtual ~GuiMessageManager() = default;

    // [gui] Whether this object handles messages of this number.
    virtual bool wantMessage(unsigned int message) = 0;

    // [gui] Carries one message out and owns what it brings. A number without a meaning is ignored.
    virtual void handleMessage(unsigned int message, WPARAM wParam, LPARAM lParam) = 0;
};

}
