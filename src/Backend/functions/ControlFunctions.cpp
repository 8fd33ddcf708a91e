#include "Backend/functions/ControlFunctions.h"

#include "Backend/core/GuiPost.h"
#include "Backend/input/controls/ControlMessages.h"

namespace Backend::FunctionManagement::Functions {

void SetWidgetFocus::execute() {
    postToGui(mirel(), Controls::WindowMessages::SET_FOCUS, m_type.getMode(), m_type.getCell());
}

}
