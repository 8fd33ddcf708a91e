#include "Gui/Utils/skin/PopupMenu.h"

#include "Gui/Rules/texts/MenuColumns.h"
#include "Gui/Utils/skin/GdiManager.h"
#include "Platform/Shell.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace Gui {

namespace {

constexpr std::string_view NEW_COLUMN_MARK = "<br>";
constexpr int DEFAULT_ROWS = 15;

MENUITEMINFOA makeInfo(UINT mask) {
    MENUITEMINFOA info{};
    info.cbSize = sizeof info;
    info.fMask = mask;
    return info;
}

}

PopupMenu::PopupMenu(const GdiManager& gdi, int resourceId)
    : m_brush(gdi.getUnselectedButtonBrush().colour()),
      m_resource(LoadMenuA(static_cast<HINSTANCE>(Platform::getModuleInstance()), MAKEINTRESOURCEA(resourceId))),
      m_menu(GetSubMenu(m_resource, 0)),
      m_rebuildable(false),
      m_rowsPerColumn(0) {
    const int count = std::max(GetMenuItemCount(m_menu), 0);
    for (int position = 0; position < count; ++position)
        takeOver(position);
    paintBackground();
}

PopupMenu::PopupMenu(const GdiManager& gdi)
    : m_brush(gdi.getUnselectedButtonBrush().colour()),
      m_menu(CreatePopupMenu()),
      m_rebuildable(true),
      m_rowsPerColumn(DEFAULT_ROWS) {
    paintBackground();
}

PopupMenu::~PopupMenu() {
    DestroyMenu(m_rebuildable ? m_menu : m_resource);
}

void PopupMenu::paintBackground() {
    MENUINFO info{};
    info.cbSize = sizeof info;
    info.fMask = MIM_BACKGROUND;
    info.hbrBack = m_brush.handle();
    SetMenuInfo(m_menu, &info);
}

// An item from the resources keeps its id, its state and the column that it opens.
void PopupMenu::takeOver(int position) {
    std::array<char, 256> text{};
    MENUITEMINFOA info = makeInfo(MIIM_FTYPE | MIIM_ID | MIIM_STRING);
    info.dwTypeData = text.data();
    info.cch = static_cast<UINT>(text.size());
    GetMenuItemInfoA(m_menu, static_cast<UINT>(position), TRUE, &info);

    auto item = std::make_unique<Item>();
    item->text = text.data();
    item->id = static_cast<int>(info.wID);
    item->newColumn = (info.fType & (MFT_MENUBREAK | MFT_MENUBARBREAK)) != 0;
    info.fMask = MIIM_FTYPE | MIIM_DATA;
    info.fType |= MFT_OWNERDRAW;
    info.dwItemData = reinterpret_cast<ULONG_PTR>(item.get());
    SetMenuItemInfoA(m_menu, static_cast<UINT>(position), TRUE, &info);
    m_items.push_back(std::move(item));
}

void PopupMenu::append(Item& item, std::size_t index) {
    const bool opensColumn = opensMenuColumn(index, m_rowsPerColumn, item.newColumn);
    MENUITEMINFOA info = makeInfo(MIIM_FTYPE | MIIM_ID | MIIM_DATA);
    info.fType = MFT_OWNERDRAW | (opensColumn ? MFT_MENUBREAK : 0u);
    info.wID = static_cast<UINT>(item.id);
    info.dwItemData = reinterpret_cast<ULONG_PTR>(&item);
    InsertMenuItemA(m_menu, static_cast<UINT>(index), TRUE, &info);
}

void PopupMenu::add(const std::string& text, int id) {
    auto item = std::make_unique<Item>();
    item->newColumn = text.starts_with(NEW_COLUMN_MARK);
    item->text = item->newColumn ? text.substr(NEW_COLUMN_MARK.size()) : text;
    item->id = id;
    append(*item, m_items.size());
    m_items.push_back(std::move(item));
}

void PopupMenu::select(int index) {
    const bool isValid = index >= 0 && index < static_cast<int>(m_items.size());
    const bool wasMarked = isValid && m_items[static_cast<std::size_t>(index)]->selected;
    for (const auto& item : m_items)
        item->selected = false;
    if (!isValid)
        return;
    m_items[static_cast<std::size_t>(index)]->selected = true;
    if (!wasMarked)
        rebuild();
}

void PopupMenu::rebuild() {
    if (!m_rebuildable)
        return;
    while (DeleteMenu(m_menu, 0, MF_BYPOSITION)) {
    }
    for (std::size_t index = 0; index < m_items.size(); ++index) {
        m_items[index]->id = static_cast<int>(index) + 1;
        append(*m_items[index], index);
    }
}

int PopupMenu::track(HWND owner, int x, int y) {
    const int id = TrackPopupMenu(m_menu, TPM_RETURNCMD | TPM_RIGHTBUTTON, x, y, 0, owner, nullptr);
    if (id >= 1)
        select(id - 1);
    return id;
}

}
