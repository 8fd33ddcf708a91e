#pragma once

#include "Gui/Rules/keys/LoopbackGuard.h"
#include "Gui/System/SetupPage.h"

#include <vector>

namespace Gui::System {

// Which outputs are in use. It can't be left while an output and an input at both ends of a cable inside the computer
// are. [gui]
class MidiOutputsPage : public SetupPage {
public:
    // The ports are the setup's. A page that was left has its marks in the outputs.
    MidiOutputsPage(MirelGuiIF& gui, std::vector<SetupPort>& outputs, const std::vector<SetupPort>& inputs);

private:
    void initialize() override;
    bool validate() override;
    void apply() override;
    void handleNotification(const NMHDR& header) override;
    void styleList() const;
    void addRow(int row) const;
    HWND list() const;

    std::vector<SetupPort>& m_outputs;
    const std::vector<SetupPort>& m_inputs;
};

}
