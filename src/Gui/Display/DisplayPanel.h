#pragma once

#include "Backend/core/log/DisplayListener.h"
#include "Gui/Utils/SkinPanel.h"
#include "Gui/Utils/skin/PopupMenu.h"

#include <windows.h>

#include <atomic>
#include <cstddef>
#include <optional>
#include <string>

namespace Backend::Display {
class DisplayMessageManager;
}

namespace Gui::Display {

// The log of events and messages. Its text comes from the log's own thread, at most ten times a second and only while
// the panel shows. The bottom edge can be dragged. [gui]
class DisplayPanel : public SkinPanel, public Backend::Display::DisplayListener {
public:
    // The log must run for as long as the panel has a window.
    DisplayPanel(MirelGuiIF& gui, Backend::Display::DisplayMessageManager& display);

    void createWnd(HINSTANCE module, HWND parentWindow) override;
    void showWnd(bool show) override;
    INT_PTR dlgProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;

    // [display] See DisplayListener. The window's thread must be answering messages.
    void append(const char* text) override;
    void setText(const char* text) override;

    // Large characters fill the panel from side to side; small ones are arranged in columns.
    void setLargeFont(bool large);

private:
    static LRESULT CALLBACK editProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT editProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void showPointer(HWND edit, LPARAM lParam);
    void handlePress(HWND edit, LPARAM lParam);
    void showMenu(LPARAM position);
    void copyText() const;
    void clearText() const;

    int firstHeight() const;
    void requestText(bool all);
    void handleTimer();
    void handleSize(int height) const;
    void handleDestroy();
    void moveLine(int y);
    void drawLine(int y) const;
    void giveResizingUp();
    void endResizing(int y);
    int onScreen(int y) const;
    void replaceText(const char* text);
    std::string readText() const;

    Backend::Display::DisplayMessageManager& m_display;
    HWND m_edit = nullptr;
    PopupMenu m_menu;
    std::size_t m_length = 0;                    // [display] Bytes in the edit, as this thread last set it.
    std::atomic<bool> m_isAwaitingText = false;  // The log's thread may be sending text, or about to.
    bool m_resizing = false;
    bool m_largeFont = false;
    std::optional<int> m_line;  // Where the edge would go, in screen coordinates.
};

}
