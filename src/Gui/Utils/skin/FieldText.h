// Distinguishes the program's changes of an edit from the user's: the program marks the edit before it sets the text,
// and the next change removes the mark.
#pragma once

#include "Gui/Utils/skin/SkinProperties.h"
#include "Gui/Utils/windows/WindowProperties.h"

#include <windows.h>

#include <string>

namespace Gui {

// [gui] Sets the text of a control on the program's behalf.
inline void setFieldText(HWND dialog, int id, const std::string& text) {
    const HWND field = GetDlgItem(dialog, id);
    setNumber(field, SkinProperties::SET_BY_PROGRAM, 1);
    SetWindowTextA(field, text.c_str());
    // A multi-line edit sends no notification of new text, so the mark would hit the user's next change.
    if ((GetWindowLongPtrA(field, GWL_STYLE) & ES_MULTILINE) != 0)
        RemovePropA(field, SkinProperties::SET_BY_PROGRAM);
}

// [gui] For handlers of EN_CHANGE, which must do nothing if this is true: the program made the change.
inline bool takeProgramsChange(HWND dialog, int id) {
    return RemovePropA(GetDlgItem(dialog, id), SkinProperties::SET_BY_PROGRAM) != nullptr;
}

}
