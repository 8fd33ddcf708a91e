#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace Gui {

class GdiManager;

// A list of choices on an edit control: a click opens it as a menu, the wheel steps through it. Before each choice of
// the user the control's parent is asked, and after it notified. [gui]
class ComboBox {
public:
    // Posted to the parent. w: the edit's window; l: its control id.
    static UINT changeMessage();

    // Sent to the parent. w: the edit's control id; l: the item's index. Anything but 0 refuses the choice.
    static UINT validateMessage();

    explicit ComboBox(const GdiManager& gdi) : m_gdi(&gdi) {}
    ComboBox(const ComboBox&) = delete;
    ComboBox& operator=(const ComboBox&) = delete;
    virtual ~ComboBox();

    // The edit's messages; a derived class calls this for what it doesn't handle itself.
    virtual LRESULT wndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    // Takes over an edit, whose parent must be skinned. A column of the menu holds this many rows; unused is ignored.
    // An edit with ES_READONLY or the property "READONLY" gives up the focus that a click gave it.
    void attach(HWND edit, int unused, int rowsPerColumn);

    void addItem(int value, const std::string& text, bool enabled = true);
    void addItem(const std::string& key, const std::string& text, bool enabled = true);

    // Keeps the text; nothing is selected.
    void clearItems();

    // Select the first item with that value or key, without notifying the parent; none if there is no such item.
    void selectValue(int value);
    void selectKey(const std::string& key);

    // An index without an item selects none and empties the text. notify: whether to notify the parent.
    void setSelection(int index, bool notify);

    int getSelection() const { return m_selected; }  // -1 for none.
    int getSelectedValue() const;                    // -1 for none.
    std::string getSelectedKey() const;              // Empty for none.
    std::string getSelectedText() const;             // Empty for none.
    int getItemCount() const { return static_cast<int>(m_items.size()); }

    // A disabled list responds neither to clicks nor to the wheel; the edit is disabled with it.
    void setEnabled(bool enabled);

    // Whether the left button opens the list as well as the right one; true at first.
    void setLeftClickOpens(bool opens) { m_leftClickOpens = opens; }

    HWND getWindowHandle() const { return m_windowHandle; }

private:
    struct Item {
        int value;
        std::string key;
        std::string text;
        bool enabled;

        bool operator==(const Item&) const = default;
    };

    static LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    const Item* selectedItem() const;
    int findItem(const Item& item) const;  // -1 if there is no equal one.
    bool isOn(HWND edit) const;
    int controlId() const;
    bool isReadOnly() const;
    void handleClick();
    void openMenu();
    int trackMenu();
    void choose(int index);
    void turn(WPARAM wParam);

    const GdiManager* m_gdi;
    HWND m_windowHandle = nullptr;
    std::vector<Item> m_items;
    int m_selected = -1;
    bool m_leftClickOpens = true;
    bool m_menuShowing = false;
    bool m_enabled = true;
    int m_rowsPerColumn = 0;
};

}
