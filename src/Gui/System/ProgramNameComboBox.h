#pragma once

#include "Gui/System/ProgramNameEditBox.h"
#include "Gui/Utils/widgets/ComboBox.h"

#include <memory>

namespace Gui {
class MirelGuiIF;
}

namespace Gui::System {

// The programs of the bank. With Ctrl held, the left button opens a box for the current program's name instead of the
// list. [gui]
class ProgramNameComboBox : public ComboBox {
public:
    explicit ProgramNameComboBox(MirelGuiIF& gui);

    LRESULT wndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void editName(HWND window);
    LRESULT handleControlColour(HDC dc) const;

    MirelGuiIF& m_gui;
    std::unique_ptr<ProgramNameEditBox> m_nameBox;  // The last one, open or not.
};

}
