#pragma once

#include "Gui/Rules/keys/LoopbackGuard.h"
#include "Gui/System/SetupPage.h"

#include <vector>

namespace Gui::System {

// Which outputs are in use. The user can't leave the page while both ends of a cable inside the computer are enabled,
// one as output and one as input. [gui]
class MidiOutputsPage : public SetupPage {
public:
    // The ports belong to the setup. When the page is left, its check marks are in outputs.
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
