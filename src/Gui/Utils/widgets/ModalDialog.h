#pragma once

#include "Gui/Utils/widgets/DialogObject.h"

#include <windows.h>

#include <string>

namespace Gui {

// A dialog with one line of text that stays open while something else works, and that the user can't close. [gui]
class ModalDialog : private DialogObject {
public:
    // closeMessage: sent to the dialog's window when the work is done.
    ModalDialog(UINT closeMessage, std::string text)
        : DialogObject("ModalDialog"), m_closeMessage(closeMessage), m_text(std::move(text)) {}
    virtual ~ModalDialog() = default;

    // Starts the work, which must end by sending closeMessage to this window. An exception closes the dialog at once.
    virtual void start(HWND dialog) = 0;

    // Shows the dialog in front of its owner until the message comes.
    void run(HWND owner);

private:
    INT_PTR dlgProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void startOrEnd();

    UINT m_closeMessage;
    std::string m_text;
};

}
