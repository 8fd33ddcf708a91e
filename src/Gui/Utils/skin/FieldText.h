// How an edit's changes by the program are told from the user's: the program marks the edit before it sets the text,
// and the first change that follows takes the mark away.
#pragma once

#include "Gui/Utils/skin/SkinProperties.h"
#include "Gui/Utils/windows/WindowProperties.h"

#include <windows.h>

#include <string>

namespace Gui {

// [gui] Sets the text of a control as the program.
inline void setFieldText(HWND dialog, int id, const std::string& text) {
    const HWND field = GetDlgItem(dialog, id);
    setNumber(field, SkinProperties::SET_BY_PROGRAM, 1);
    SetWindowTextA(field, text.c_str());
    // An edit of several lines says nothing of a new text. The mark would meet the user's next change.
    if ((GetWindowLongPtrA(field, GWL_STYLE) & ES_MULTILINE) != 0)
        RemovePropA(field, SkinProperties::SET_BY_PROGRAM);
}

// [gui] For the handler of EN_CHANGE, which does nothing if this is true: the change was the program's.
inline bool takeProgramsChange(HWND dialog, int id) {
    return RemovePropA(GetDlgItem(dialog, id), SkinProperties::SET_BY_PROGRAM) != nullptr;
}

}
