#include "Gui/System/SetupDialog.h"

#include "Gui/MirelGuiIF.h"
#include "Gui/Rules/places/SheetPlacement.h"
#include "Platform/Shell.h"

#include <prsht.h>

namespace Gui::System {

namespace {

constexpr const char* CAPTION = "Mirel Console Setup";

template <class Port>
std::vector<SetupPort> describePorts(const std::vector<Port>& ports) {
    std::vector<SetupPort> described;
    described.reserve(ports.size());
    for (const Port& port : ports)
        described.push_back({port.name, port.available, port.enabled});
    return described;
}

}

SetupDialog::SetupDialog(MirelGuiIF& gui, Backend::RegistrySettings& settings, bool offersAlwaysOnTop,
                         bool offersMetallicBorder, bool hasMidiOutputs)
    : m_gui(gui),
      m_hasMidiOutputs(hasMidiOutputs),
      m_generalPage(gui, settings, offersAlwaysOnTop, offersMetallicBorder),
      m_displayPage(gui, settings),
      m_midiOutputsPage(gui, m_outputs, m_inputs) {}

void SetupDialog::show() {
    m_outputs = describePorts(m_gui.getMidiOutputPorts());
    m_inputs = describePorts(m_gui.getMidiInputPorts());
    std::vector<PROPSHEETPAGEA> pages = {m_generalPage.describe(), m_displayPage.describe()};
    if (m_hasMidiOutputs)
        pages.push_back(m_midiOutputsPage.describe());

    PROPSHEETHEADERA sheet{};
    sheet.dwSize = sizeof sheet;
    sheet.dwFlags = PSH_PROPSHEETPAGE | PSH_NOAPPLYNOW | PSH_USECALLBACK | PSH_NOCONTEXTHELP;
    sheet.hwndParent = m_gui.getWindowHandle();
    sheet.hInstance = static_cast<HINSTANCE>(Platform::getModuleInstance());
    sheet.pszCaption = CAPTION;
    sheet.nPages = static_cast<UINT>(pages.size());
    sheet.nStartPage = 0;
    sheet.ppsp = pages.data();
    sheet.pfnCallback = sheetProcedure;
    PropertySheetA(&sheet);
}

// The desk's window may be a strip at the edge of the screen: the sheet opens around its middle, but fully on the
// screen.
int CALLBACK SetupDialog::sheetProcedure(HWND sheet, UINT message, LPARAM) {
    if (message != PSCB_INITIALIZED)
        return 0;
    const HWND owner = GetWindow(sheet, GW_OWNER);
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    RECT around{};
    RECT rect{};
    if (!owner || !GetWindowRect(owner, &around) || !GetWindowRect(sheet, &rect) ||
        !GetMonitorInfoA(MonitorFromWindow(owner, MONITOR_DEFAULTTONEAREST), &monitor))
        return 0;
    const RECT& work = monitor.rcWork;
    const Rect place = placeSheet({rect.left, rect.top, rect.right, rect.bottom},
                                  {around.left, around.top, around.right, around.bottom},
                                  {work.left, work.top, work.right, work.bottom});
    SetWindowPos(sheet, nullptr, place.left, place.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    return 0;
}

}
