#pragma once

#include "Gui/Utils/widgets/DialogObject.h"

#include <windows.h>

#include <prsht.h>

namespace Gui {
class MirelGuiIF;
}

namespace Gui::System {

// A page of the setup: a skinned dialog that lives from the first look at the page to the end of the sheet. [gui]
class SetupPage : protected DialogObject {
public:
    // property: the name under which the page's window carries this object.
    SetupPage(MirelGuiIF& gui, int dialogId, const char* property)
        : DialogObject(property), m_gui(gui), m_dialogId(dialogId) {}

    // What the sheet needs to know.
    PROPSHEETPAGEA describe();

protected:
    ~SetupPage() = default;

    // Fills the controls.
    virtual void initialize() = 0;

    // Whether the page can be left with what its controls hold; tells the user if it can't.
    virtual bool validate() { return true; }

    // Has the desk take over what the controls hold.
    virtual void apply() = 0;

    // Of the page's own controls.
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
