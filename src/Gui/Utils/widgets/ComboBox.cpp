#include "Gui/Utils/widgets/ComboBox.h"

#include "Gui/Rules/values/ComboWheel.h"
#include "Gui/Utils/skin/PopupMenu.h"
#include "Gui/Utils/skin/SkinProperties.h"
#include "Gui/Utils/windows/UserMessages.h"
#include "Gui/Utils/windows/WindowProcedure.h"

#include <algorithm>

namespace Gui {

namespace {

constexpr const char* PROCEDURE = "COMBO_PROP";
constexpr const char* READ_ONLY = "READONLY";
constexpr UINT_PTR MENU_TIMER = 1;
constexpr UINT MENU_TIMER_MILLISECONDS = 20;

}

UINT ComboBox::changeMessage() {
    static const UINT message = RegisterWindowMessageA("UD_COMBOBOXCHANGE_Tamsel2008");
    return message;
}

UINT ComboBox::validateMessage() {
    static const UINT message = RegisterWindowMessageA("UD_COMBOBOXVALIDATE_Tamsel2008");
    return message;
}

ComboBox::~ComboBox() {
    if (!m_windowHandle)
        return;
    RemovePropA(m_windowHandle, SkinProperties::COMBO_BOX);
    unsubclass(m_windowHandle, PROCEDURE);
}

void ComboBox::attach(HWND edit, int, int rowsPerColumn) {
    m_windowHandle = edit;
    m_leftClickOpens = true;
    m_rowsPerColumn = rowsPerColumn;
    setNumber(edit, SkinProperties::TEXT, 1);
    setObject(edit, SkinProperties::COMBO_BOX, this);
    subclass(edit, PROCEDURE, windowProcedure);
}

void ComboBox::addItem(int value, const std::string& text, bool enabled) {
    m_items.push_back({value, std::string(), text, enabled});
}

void ComboBox::addItem(const std::string& key, const std::string& text, bool enabled) {
    m_items.push_back({0, key, text, enabled});
}

void ComboBox::clearItems() {
    m_items.clear();
    m_selected = -1;
}

void ComboBox::selectValue(int value) {
    const auto item = std::find_if(m_items.begin(), m_items.end(), [&](const Item& i) { return i.value == value; });
    setSelection(static_cast<int>(item - m_items.begin()), false);
}

void ComboBox::selectKey(const std::string& key) {
    const auto item = std::find_if(m_items.begin(), m_items.end(), [&](const Item& i) { return i.key == key; });
    setSelection(static_cast<int>(item - m_items.begin()), false);
}

void ComboBox::setSelection(int index, bool notify) {
    m_selected = index >= 0 && index < getItemCount() ? index : -1;
    SetWindowTextA(m_windowHandle, getSelectedText().c_str());
    if (notify)
        PostMessageA(GetParent(m_windowHandle), changeMessage(), reinterpret_cast<WPARAM>(m_windowHandle), controlId());
}

const ComboBox::Item* ComboBox::selectedItem() const {
    return m_selected < 0 ? nullptr : &m_items[static_cast<std::size_t>(m_selected)];
}

int ComboBox::getSelectedValue() const {
    const Item* item = selectedItem();
    return item ? item->value : -1;
}

std::string ComboBox::getSelectedKey() const {
    const Item* item = selectedItem();
    return item ? item->key : std::string();
}

std::string ComboBox::getSelectedText() const {
    const Item* item = selectedItem();
    return item ? item->text : std::string();
}

void ComboBox::setEnabled(bool enabled) {
    m_enabled = enabled;
    EnableWindow(m_windowHandle, enabled);
}

// False once the edit is gone. This object may be gone with it, so the check doesn't use it.
bool ComboBox::isOn(HWND edit) const {
    return getObject<ComboBox>(edit, SkinProperties::COMBO_BOX) == this;
}

int ComboBox::controlId() const {
    return GetDlgCtrlID(m_windowHandle);
}

bool ComboBox::isReadOnly() const {
    return getFlag(m_windowHandle, READ_ONLY) || (GetWindowLongPtrA(m_windowHandle, GWL_STYLE) & ES_READONLY) != 0;
}

LRESULT CALLBACK ComboBox::windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    ComboBox* const box = getObject<ComboBox>(window, SkinProperties::COMBO_BOX);
    if (!box)
        return callOriginal(window, PROCEDURE, message, wParam, lParam);
    return withoutExceptions([&] { return box->wndProc(window, message, wParam, lParam); });
}

LRESULT ComboBox::wndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            if (!m_leftClickOpens)
                break;
            handleClick();
            return 0;
        case WM_RBUTTONDOWN:
        case WM_RBUTTONDBLCLK: handleClick(); return 0;
        // The right button does nothing but open the list.
        case WM_RBUTTONUP:
        case WM_CONTEXTMENU: return 0;
        case WM_MOUSEWHEEL:
        case UM_MOUSEWHEEL: turn(wParam); return 0;
        case WM_KEYDOWN:
        case WM_KEYUP: SendMessageA(GetParent(window), message, wParam, lParam); return 0;
        case WM_TIMER:
            if (wParam != MENU_TIMER)
                break;
            KillTimer(window, MENU_TIMER);
            m_menuShowing = false;
            return 0;
        case WM_DESTROY:
            m_windowHandle = nullptr;
            m_menuShowing = false;
            RemovePropA(window, SkinProperties::COMBO_BOX);
            return passOnForTheLastTime(window, PROCEDURE, message, wParam, lParam);
        default: break;
    }
    return callOriginal(window, PROCEDURE, message, wParam, lParam);
}

void ComboBox::handleClick() {
    if (!m_enabled)
        return;
    if (!m_menuShowing)
        openMenu();
    else if (isReadOnly())
        SetFocus(GetParent(m_windowHandle));
}

void ComboBox::openMenu() {
    const HWND edit = m_windowHandle;
    m_menuShowing = true;
    // The list may be replaced while the menu shows.
    const std::vector<Item> shown = m_items;
    int index = trackMenu() - 1;
    if (!isOn(edit))
        return;
    if (m_items != shown)
        index = index >= 0 ? findItem(shown[static_cast<std::size_t>(index)]) : index;
    // The click that closed the menu may have been on the edit, and arrives only now.
    SetTimer(m_windowHandle, MENU_TIMER, MENU_TIMER_MILLISECONDS, nullptr);
    if (index >= 0 && index < getItemCount() && m_items[static_cast<std::size_t>(index)].enabled)
        choose(index);
    PostMessageA(GetParent(edit), UM_RETURN_FOCUS, 0, 0);
}

int ComboBox::findItem(const Item& item) const {
    const auto found = std::find(m_items.begin(), m_items.end(), item);
    return found == m_items.end() ? -1 : static_cast<int>(found - m_items.begin());
}

int ComboBox::trackMenu() {
    PopupMenu menu(*m_gdi);
    menu.setRowsPerColumn(m_rowsPerColumn);
    for (std::size_t i = 0; i < m_items.size(); ++i)
        menu.add(m_items[i].text, static_cast<int>(i) + 1);
    menu.select(m_selected);
    for (std::size_t i = 0; i < m_items.size(); ++i)
        if (!m_items[i].enabled)
            EnableMenuItem(menu.handle(), static_cast<UINT>(i), MF_BYPOSITION | MF_GRAYED);
    RECT rect{};
    GetWindowRect(m_windowHandle, &rect);
    return menu.track(GetParent(m_windowHandle), rect.left, rect.bottom);
}

void ComboBox::choose(int index) {
    const HWND edit = m_windowHandle;
    const LRESULT refused = SendMessageA(GetParent(edit), validateMessage(), static_cast<WPARAM>(controlId()), index);
    if (refused == 0 && isOn(edit))
        setSelection(index, true);
}

void ComboBox::turn(WPARAM wParam) {
    const int delta = GET_WHEEL_DELTA_WPARAM(wParam);
    if (!m_enabled || delta == 0)
        return;
    std::vector<bool> enabled;
    for (const Item& item : m_items)
        enabled.push_back(item.enabled);
    const int index = nextEnabledItem(enabled, m_selected, delta < 0);
    if (index >= 0)
        choose(index);
}

}
