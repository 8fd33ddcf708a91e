// The options that screens set for their controls.
#include "Gui/Utils/skin/SkinProperties.h"
#include "Gui/Utils/skin/Skinner.h"
#include "Gui/Utils/windows/Redraw.h"
#include "Gui/Utils/windows/WindowProperties.h"

namespace Gui {

using namespace SkinProperties;

namespace {

constexpr WPARAM WHOLE_FRAME = 1;  // Instead of a region.

// The limit set last counts, whether it is 0 or not.
void setLimit(HWND control, const char* property, const char* zeroProperty, int limit) {
    if (limit == 0) {
        setNumber(control, zeroProperty, 1);
        return;
    }
    RemovePropA(control, zeroProperty);
    setNumber(control, property, limit);
}

}

void Skinner::setNoWheel(HWND dialog, int id) {
    setNoWheel(GetDlgItem(dialog, id));
}

void Skinner::setNoWheel(HWND control) {
    setNumber(control, NO_WHEEL, 1);
}

void Skinner::setMinMax(HWND dialog, int id, int min, int max) {
    setMin(dialog, id, min);
    setMax(dialog, id, max);
}

void Skinner::setMin(HWND dialog, int id, int min) {
    setMin(GetDlgItem(dialog, id), min);
}

void Skinner::setMin(HWND control, int min) {
    setLimit(control, MIN, MIN_ZERO, min);
}

void Skinner::setMax(HWND dialog, int id, int max) {
    setMax(GetDlgItem(dialog, id), max);
}

void Skinner::setMax(HWND control, int max) {
    setLimit(control, MAX, MAX_ZERO, max);
}

void Skinner::showZeroAsBlank(HWND dialog, int id, bool blank) {
    setNumber(GetDlgItem(dialog, id), SHOW_ZERO_AS_BLANK, blank);
}

void Skinner::setGrayText(HWND dialog, int id, bool gray, bool invalidateNow) {
    const HWND control = GetDlgItem(dialog, id);
    setNumber(control, GRAY_TEXT, gray);
    if (invalidateNow)
        redraw(control, true);
}

void Skinner::setText(HWND dialog, int id, bool text) {
    setNumber(GetDlgItem(dialog, id), TEXT, text);
}

void Skinner::setSelected(HWND dialog, int id, bool selected) {
    const HWND control = GetDlgItem(dialog, id);
    setNumber(control, SELECTED, selected);
    redraw(control, true);
}

void Skinner::indicateInvalidValue(HWND dialog, int id, bool invalid) {
    setGrayText(dialog, id, invalid, true);
    if (!invalid)
        return;
    const HWND control = GetDlgItem(dialog, id);
    // The user can't type below a ComboBox anyway.
    if (!getFlag(control, COMBO_BOX))
        setNumber(control, SET_BY_PROGRAM, 1);
    SetWindowTextA(control, "?");
}

void Skinner::enableControl(HWND dialog, int editId, int labelId, bool enable) {
    enableLabel(dialog, labelId, enable);
    const HWND edit = GetDlgItem(dialog, editId);
    EnableWindow(edit, enable);
    SendMessageA(edit, WM_NCPAINT, WHOLE_FRAME, 0);
}

void Skinner::enableLabel(HWND dialog, int id, bool enable) {
    const HWND label = GetDlgItem(dialog, id);
    setNumber(label, DISABLED, !enable);
    redraw(label, true);
}

}
