#include "Gui/System/MidiOutputsPage.h"

#include "Backend/core/MirelMessageManager.h"
#include "Gui/MirelGuiIF.h"
#include "Gui/ResourceIds.h"
#include "Gui/Utils/skin/GdiManager.h"
#include "Gui/Utils/windows/WindowProperties.h"

#include <commctrl.h>

#include <string>

namespace Gui::System {

namespace {

constexpr const char* FILLING = "MYCHANGE";
constexpr int COLUMN_WIDTH = 220;
constexpr UINT UNCHECKED_IMAGE = 1;
constexpr UINT CHECKED_IMAGE = 2;
constexpr const char* LOOP_TITLE = "Invalid entry";
constexpr const char* LOOP_TEXT = "Invalid MIDI loopback port settings. Cannot enable input and output simultaneously.";

}

MidiOutputsPage::MidiOutputsPage(MirelGuiIF& gui, std::vector<SetupPort>& outputs, const std::vector<SetupPort>& inputs)
    : SetupPage(gui, IDD_SETUP_MIDI_OUTPUTS, "MidiOutputDialog"), m_outputs(outputs), m_inputs(inputs) {}

HWND MidiOutputsPage::list() const {
    return control(IDC_SETUP_OUTPUT_LIST);
}

void MidiOutputsPage::initialize() {
    setNumber(list(), FILLING, 1);
    styleList();
    for (std::size_t row = 0; row < m_outputs.size(); ++row)
        addRow(static_cast<int>(row));
    RemovePropA(list(), FILLING);
}

void MidiOutputsPage::styleList() const {
    const GdiManager& gdi = gui().getGdiManager();
    ListView_SetExtendedListViewStyle(list(), LVS_EX_CHECKBOXES);
    ListView_SetBkColor(list(), gdi.getBackroundBrush().colour());
    ListView_SetTextBkColor(list(), gdi.getBackroundBrush().colour());
    ListView_SetTextColor(list(), gdi.getTextBrush().colour());
    LVCOLUMNA column{};
    column.mask = LVCF_WIDTH;
    column.cx = COLUMN_WIDTH;
    SendMessageA(list(), LVM_INSERTCOLUMNA, 0, reinterpret_cast<LPARAM>(&column));
}

void MidiOutputsPage::addRow(int row) const {
    const SetupPort& port = m_outputs[static_cast<std::size_t>(row)];
    std::string text = describeSetupPort(port);
    LVITEMA item{};
    item.mask = LVIF_TEXT;
    item.iItem = row;
    item.pszText = text.data();
    SendMessageA(list(), LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item));
    LVITEMA state{};
    state.stateMask = LVIS_STATEIMAGEMASK;
    state.state = INDEXTOSTATEIMAGEMASK(port.enabled ? CHECKED_IMAGE : UNCHECKED_IMAGE);
    SendMessageA(list(), LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&state));
}

void MidiOutputsPage::handleNotification(const NMHDR& header) {
    if (header.hwndFrom == list() && header.code == LVN_ITEMCHANGED && !getFlag(list(), FILLING))
        PropSheet_Changed(GetParent(window()), window());
}

bool MidiOutputsPage::validate() {
    std::vector<SetupPort> outputs = m_outputs;
    for (std::size_t row = 0; row < outputs.size(); ++row)
        outputs[row].enabled = ListView_GetCheckState(list(), static_cast<UINT>(row)) != 0;
    if (wouldLoop(outputs, m_inputs)) {
        MessageBoxA(window(), LOOP_TEXT, LOOP_TITLE, MB_OK);
        return false;
    }
    m_outputs = outputs;
    return true;
}

void MidiOutputsPage::apply() {
    Backend::MirelMessageManager& desk = gui().getMirelMessageManager();
    for (std::size_t row = 0; row < m_outputs.size(); ++row)
        desk.postEnableMidiOutput(static_cast<int>(row), m_outputs[row].enabled);
}

}
