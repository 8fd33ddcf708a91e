#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace Gui {

// Asks the user for a line of text. [gui]
class TextPrompt {
public:
    TextPrompt(std::string caption, std::string prompt, std::string defaultText, bool allowBlank = false)
        : m_caption(std::move(caption)),
          m_prompt(std::move(prompt)),
          m_text(std::move(defaultText)),
          m_allowBlank(allowBlank) {}

    // The text without blanks around it, or nothing if the user cancels. An empty one only if that is allowed.
    std::optional<std::string> run(HWND owner);

private:
    static INT_PTR CALLBACK dialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR dlgProc(HWND dialog, UINT message, WPARAM wParam);
    void fill(HWND dialog);
    bool take(HWND dialog);

    std::string m_caption;
    std::string m_prompt;
    std::string m_text;
    bool m_allowBlank;
};

}
