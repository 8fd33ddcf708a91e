#pragma once

#include "Gui/Utils/widgets/DialogObject.h"

#include <windows.h>

#include <prsht.h>

namespace Gui {
class MirelGuiIF;
}

namespace Gui::System {

// A page of the setup: a skinned dialog that exists from the first time the page is shown to the end of the sheet.
// [gui]
class SetupPage : protected DialogObject {
public:
    // property: the name under which the page's window stores this object.
    SetupPage(MirelGuiIF& gui, int dialogId, const char* property)
        : DialogObject(property), m_gui(gui), m_dialogId(dialogId) {}

    // The page's description for the sheet.
    PROPSHEETPAGEA describe();

protected:
    ~SetupPage() = default;

    // Fills the controls.
    virtual void initialize() = 0;

    // Whether the page can be left with the values in its controls; informs the user if not.
    virtual bool validate() { return true; }

    // Has the desk take over the values in the controls.
    virtual void apply() = 0;

    // For the page's own controls.
    virtual void handleNotification(const NMHDR&) {}

    MirelGuiIF& gui() const { return m_gui; }
    void setChecked(int id, bool checked) const;
    bool isChecked(int id) const;

private:
    INT_PTR dlgProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    INT_PTR handleNotify(const NMHDR& header);
    INT_PTR handleListColour(HDC dc) const;
    void toggleFocusedCheckBox() const;

    MirelGuiIF& m_gui;
    int m_dialogId;
};

}
