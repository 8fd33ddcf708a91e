#pragma once

#include <string_view>

namespace Gui {

constexpr int SMALL_BUTTON_HEIGHT = 16;
constexpr int SMALL_BUTTON_WIDTH = 11;

// [any] Whether a button of this size, in pixels, needs a small font.
constexpr bool isSmallButton(long width, long height) {
    return height < SMALL_BUTTON_HEIGHT || width < SMALL_BUTTON_WIDTH;
}

// [any] Whether a button's text is one of the two signs that sit too low in a small button.
constexpr bool isSign(std::string_view text) {
    return text == "+" || text == "-";
}

// How the skin treats the system's button controls.
enum class ButtonKind { pushButton, checkBox, radioButton };

constexpr int BUTTON_TYPE_BITS = 0xf;

// [any] The kind of a button, from the type bits of its style.
constexpr ButtonKind getButtonKind(unsigned type) {
    constexpr ButtonKind KINDS[BUTTON_TYPE_BITS + 1] = {
        ButtonKind::pushButton,   // BS_PUSHBUTTON
        ButtonKind::pushButton,   // BS_DEFPUSHBUTTON
        ButtonKind::checkBox,     // BS_CHECKBOX
        ButtonKind::checkBox,     // BS_AUTOCHECKBOX
        ButtonKind::radioButton,  // BS_RADIOBUTTON
        ButtonKind::checkBox,     // BS_3STATE
        ButtonKind::checkBox,     // BS_AUTO3STATE
        ButtonKind::pushButton,   // BS_GROUPBOX
        ButtonKind::pushButton,   // BS_USERBUTTON
        ButtonKind::radioButton,  // BS_AUTORADIOBUTTON
        ButtonKind::checkBox,     // BS_PUSHBOX
        ButtonKind::checkBox,     // BS_OWNERDRAW
        ButtonKind::pushButton,   // BS_SPLITBUTTON
        ButtonKind::pushButton,   // BS_DEFSPLITBUTTON
        ButtonKind::pushButton,   // BS_COMMANDLINK
        ButtonKind::pushButton,   // BS_DEFCOMMANDLINK
    };
    return KINDS[type & BUTTON_TYPE_BITS];
}

}
