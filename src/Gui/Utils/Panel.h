#pragma once

#include <windows.h>

#include <array>

namespace Gui {

// A child window with a place in a tree of panels, stacked from top to bottom. Whenever a panel shows, hides or changes
// its height, those below it move and all above it in the tree grow or shrink, up to the window that holds the root.
// There is no layout pass: each change travels through the tree as a difference in pixels.
//
// A visible panel has 5 pixels of free space above it if another visible one is there. A panel is visible when its own
// window has WS_VISIBLE, whatever its parents do. All operations are for the window's thread [gui]. A tree's panels
// must outlive their use; their windows go with the window around them.
class Panel {
public:
    static constexpr int MAX_PANELS = 200;
    static constexpr int SPACING = 5;

    // dialogId: the template for this panel, or 0 for a plain window. Only plain windows can hold other panels.
    explicit Panel(int dialogId = 0, bool hasBorder = false) : m_dialogId(dialogId), m_hasBorder(hasBorder) {}
    Panel(const Panel&) = delete;
    Panel& operator=(const Panel&) = delete;

    // Shows or hides the panel, moving and resizing everything that depends on it. Does nothing if nothing changes.
    virtual void showWnd(bool show);

    // Creates the window, hidden, at the top left of its parent. If parentWindow is null, that is the parent panel's.
    virtual void createWnd(HINSTANCE module, HWND parentWindow);

    // Handle the messages of the plain window, and of the dialog.
    virtual LRESULT wndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    virtual INT_PTR dlgProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    virtual ~Panel();

    // Puts a panel below those already here, and creates its window. This panel must have its own by then. False, and
    // nothing done, if this panel is a dialog or already holds 200.
    bool add(Panel* panel);

    // Gives the window this height, in pixels.
    void modifyHeight(int newHeight);

    bool isVisible() const;

    // Whether any sub-panel is visible, even if its height is 0.
    bool anyPanelVisible() const;

    HWND getWindowHandle() const { return m_windowHandle; }  // Null without a window.
    int getWidth() const { return m_width; }

    // The panel's share of the stack: its window and the space above it.
    int getHeight() const { return m_height; }

    int getPanelCount() const { return m_panelCount; }

protected:
    // Takes no part in the 5-pixel spacing. Set this in the constructor of a derived class.
    void setNoSpacing(bool noSpacing) { m_noSpacing = noSpacing; }

private:
    static LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static INT_PTR CALLBACK dialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static Panel* ownerOf(HWND window, UINT message, UINT creation, const void* self);

    void createDialogWindow(HWND parentWindow);
    void createPlainWindow(HWND parentWindow, HINSTANCE classModule);

    void adjustParent(int index, int delta);
    void adjustParentWindow(int delta);
    void adjustChildren(int index, int delta);
    void changeSize(int delta);
    void moveWnd(int unused, int dy);
    void currentFirstToNormal();
    void nextVisibleToFirst(int index);
    void changeSpacingOf(int index, int delta);
    int firstVisibleAfter(int index) const;
    bool hasVisibleAbove() const;
    void updateSpacing(bool show, bool force);
    bool anyOtherPanelVisible(const Panel* panel) const;
    int widestPanel() const;

    HWND m_windowHandle = nullptr;
    HINSTANCE m_instanceHandle = nullptr;
    bool m_noSpacing = false;
    Panel* m_parent = nullptr;
    std::array<Panel*, MAX_PANELS> m_panels{};
    int m_panelCount = 0;
    int m_dialogId;
    int m_index = -1;
    int m_width = 0;
    int m_height = 0;
    bool m_hasBorder;
};

}
