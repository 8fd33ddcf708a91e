#pragma once

#include "Platform/WindowTypes.h"

namespace Backend {

namespace Controls {
class ControlMessageManager;
}

// The backend, as its parts and its users see it.
class MirelIF {
public:
    virtual ~MirelIF() = default;

    // [any] The window that notifications go to; null while there is none.
    virtual HWND getGuiWindowHandle() = 0;

    // [any]
    virtual Controls::ControlMessageManager& getControlMessageManager() = 0;
};

}
