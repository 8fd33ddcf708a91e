#pragma once

#include "Gui/Utils/widgets/Button.h"

#include <vector>

namespace Gui {

// One of several buttons of which one is on. Pressing it turns it on and the others off; another press changes nothing.
class RadioButton : public Button {
public:
    RadioButton(MirelGuiIF& gui, Listener* listener) : Button(gui, listener, Kind::toggle) {}

    // The other buttons of the set. They must outlive this one's window.
    void setGroup(std::vector<Button*> group) { m_group = std::move(group); }

    void onLeftButtonDown() override;

private:
    std::vector<Button*> m_group;
};

}
