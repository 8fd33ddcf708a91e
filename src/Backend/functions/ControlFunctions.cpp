#include "Backend/functions/ControlFunctions.h"

#include "Backend/input/controls/ControlMessages.h"
#include "Platform/WindowSink.h"

namespace Backend::FunctionManagement::Functions {

void SetWidgetFocus::execute() {
    using Controls::WindowMessages::SET_FOCUS;
    if (const HWND window = mirel().getGuiWindowHandle())
        Platform::postToWindow(window, SET_FOCUS, static_cast<WPARAM>(m_type.getMode()), m_type.getCell().getKey());
}

}
