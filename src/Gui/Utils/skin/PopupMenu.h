#pragma once

#include "Gui/Utils/windows/WindowsLib.h"

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

namespace Gui {

class GdiManager;

// A pop-up menu, drawn by the skin of the window that owns it while it shows. [gui]
class PopupMenu {
public:
    // Stored by the system as each item's data.
    struct Item {
        std::string text;
        bool selected = false;   // Drawn bold.
        bool newColumn = false;  // Asks for a column of its own.
        int id = 0;
    };

    // The first submenu of a menu in the library's resources. It can be tracked and its items marked, but not rebuilt.
    PopupMenu(const GdiManager& gdi, int resourceId);

    // An empty menu, to be filled by add. Columns hold 15 rows.
    explicit PopupMenu(const GdiManager& gdi);

    ~PopupMenu();
    PopupMenu(const PopupMenu&) = delete;
    PopupMenu& operator=(const PopupMenu&) = delete;

    // The most rows in a column before the next one opens; 0 leaves that to the items. Applies to items added later and
    // to rebuild.
    void setRowsPerColumn(int rows) { m_rowsPerColumn = rows; }

    // Appends an item. "<br>" before its text asks for a new column, which is ignored while rows are limited.
    void add(const std::string& text, int id);

    // Marks only this item, from 0; any other index marks none.
    void select(int index);

    // Rebuilds the menu from its items, whose ids then count from 1. Does nothing for a menu from the resources.
    void rebuild();

    // Shows the menu with its top left corner at a point on the screen and waits for a choice, which it marks as item
    // id - 1. Returns the id of the choice; 0 if there was none. The owner must be skinned.
    int track(HWND owner, int x, int y);

    const std::vector<std::unique_ptr<Item>>& getItems() const { return m_items; }
    HMENU handle() const { return m_menu; }

private:
    void takeOver(int position);
    void append(Item& item, std::size_t index);
    void paintBackground();

    WindowsLib::Brush m_brush;
    HMENU m_resource = nullptr;  // The menu that m_menu belongs to, if any.
    HMENU m_menu = nullptr;
    std::vector<std::unique_ptr<Item>> m_items;
    bool m_rebuildable;
    int m_rowsPerColumn;
};

}
