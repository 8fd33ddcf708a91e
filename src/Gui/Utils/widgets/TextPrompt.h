#pragma once

#include "Gui/Utils/widgets/DialogObject.h"

#include <windows.h>

#include <optional>
#include <string>

namespace Gui {

// Asks the user for a line of text. [gui]
class TextPrompt : private DialogObject {
public:
    TextPrompt(std::string caption, std::string prompt, std::string defaultText, bool allowBlank = false)
        : DialogObject("EditBoxDialog"),
          m_caption(std::move(caption)),
          m_prompt(std::move(prompt)),
          m_text(std::move(defaultText)),
          m_allowBlank(allowBlank) {}

    // The text, trimmed of blanks; nothing if the user cancels. It can be empty only if that is allowed.
    std::optional<std::string> run(HWND owner);

private:
    INT_PTR dlgProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void fill();
    bool take();

    std::string m_caption;
    std::string m_prompt;
    std::string m_text;
    bool m_allowBlank;
};

}
