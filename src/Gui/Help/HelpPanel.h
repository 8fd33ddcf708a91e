#pragma once

#include "Gui/Rules/places/HelpHover.h"
#include "Gui/Utils/SkinPanel.h"
#include "Gui/Utils/widgets/Button.h"

#include <windows.h>

#include <array>
#include <string>

namespace Gui::Help {

// Tells about whatever is under the pointer, and about the product. [gui]
class HelpPanel : public SkinPanel, public Button::Listener {
public:
    explicit HelpPanel(MirelGuiIF& gui);

    void createWnd(HINSTANCE module, HWND parentWindow) override;

    // The text of an id of the resources; none for 0 and below. What shows already is not loaded again, and nothing
    // changes while the panel tells about the product.
    void showHelp(int id);

    // By the property "HELP" of a window. One without it, or null, leaves the text as it is.
    void showHelp(HWND window);

    void showHelp(const std::string& text);

private:
    static constexpr std::size_t BUFFER_SIZE = 5001;

    static LRESULT CALLBACK editProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void buttonChanged(int id, bool state) override;
    void createButton(Button& button, int id, int helpId);
    void createEdit();
    void setShowingAbout(bool showing);
    void setText(const char* text);

    HelpHover m_hover;
    std::array<char, BUFFER_SIZE> m_buffer{};
    Button m_manualButton;
    Button m_aboutButton;
};

}
