#pragma once

#include "Gui/Rules/places/HelpHover.h"
#include "Gui/Utils/SkinPanel.h"
#include "Gui/Utils/widgets/Button.h"

#include <windows.h>

#include <array>
#include <string>

namespace Gui::Help {

// Explains whatever is under the pointer, and shows information about the product. [gui]
class HelpPanel : public SkinPanel, public Button::Listener {
public:
    explicit HelpPanel(MirelGuiIF& gui);

    void createWnd(HINSTANCE module, HWND parentWindow) override;

    // Shows the resource text with this id; 0 and below have none. Text that is already shown is not loaded again, and
    // nothing changes while information about the product is shown.
    void showHelp(int id);

    // Uses the property "HELP" of a window. Without that property, or for null, the text stays as it is.
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
