#pragma once

#include "Host/console/FrameLayout.h"
#include "Host/console/OpenRequest.h"
#include "Host/console/win32/FrameBorder.h"

#include <windows.h>

#include <shellapi.h>

#include <string>

namespace Gui {
class MirelGuiIF;
}

namespace Host::Console {

// The window around the desk: it follows the desk's size and its requests, has the metallic border or the system's own,
// and passes on the keyboard focus. [gui]
class FrameWindow {
public:
    // What the user requests from the frame.
    class Listener {
    public:
        virtual void closeRequested() = 0;

        // The user's session is ending.
        virtual void sessionEnds() = 0;

        // Whether requests to open files can still be carried out; false once one of the two calls above was made.
        virtual bool canOpen() const = 0;
        virtual void openRequested(const OpenRequest& request) = 0;

        // Twice a second.
        virtual void timePassed() = 0;

    protected:
        ~Listener() = default;
    };

    struct Options {
        bool useSkinBorder = true;
        bool alwaysOnTop = false;
        bool dockToBottomEdge = false;
        bool globalKeyboard = false;
    };

    // A hidden window at the top left of the screen, around a desk of no size.
    FrameWindow(Listener& listener, const Options& options);
    ~FrameWindow();
    FrameWindow(const FrameWindow&) = delete;
    FrameWindow& operator=(const FrameWindow&) = delete;

    HWND getWindowHandle() const { return m_window; }

    // The desk inside; null once it is gone.
    void setGui(Gui::MirelGuiIF* gui);

    // Shows the window where the desk asked for, or otherwise in the middle of the screen.
    void show(int command);

    // Comes in front of all other programs, also when minimised.
    void comeToFront();

    // Updates the title to the desk's bank and program.
    void refreshTitle();

    bool hasSkinBorder() const { return m_options.useSkinBorder; }

private:
    static LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT wndProc(UINT message, WPARAM wParam, LPARAM lParam);
    bool handleDeskMessage(UINT message, WPARAM wParam, LPARAM lParam);
    bool handleBorderMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
    static void makeRoomForBorder(RECT& rect);
    bool handleBorderButtons(UINT message, WPARAM wParam, LPARAM lParam);
    void setButtons(FramePart hovered, FramePart pressed);
    void hoverBorder(FramePart part);
    bool pressBorder(WPARAM hit, FramePart part);
    bool dragBorderButton(POINT point);
    bool releaseBorderButton();
    void paintBackground(HDC dc) const;
    bool takeRequest(const COPYDATASTRUCT& data);

    DWORD style() const;
    void setDeskSize(int width, int height);
    void setSkinBorder(bool useSkinBorder);
    void setAlwaysOnTop(bool alwaysOnTop);
    void setDock(bool dock);
    void place(const Rect& rect);
    Rect position() const;
    Rect workArea() const;
    void comeIntoReach();
    void takeWaitingWishes();

    FrameLayout layout() const;
    FramePart partAtScreenPoint(LPARAM lParam) const;
    void setLook(const FrameLook& look);
    void paintBorder();
    void showSystemMenu(int x, int y);
    void takeDroppedFiles(HDROP drop);

    Listener& m_listener;
    Options m_options;
    Gui::MirelGuiIF* m_gui = nullptr;
    HWND m_window = nullptr;
    HICON m_icon = nullptr;
    HICON m_smallIcon = nullptr;
    FrameBorder m_border;
    FrameLook m_look;
    SIZE m_deskSize{};
    std::string m_title;
    bool m_wasPlaced = false;  // The desk has requested a position, not merely grown.
};

}
