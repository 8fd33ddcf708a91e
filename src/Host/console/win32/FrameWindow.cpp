// What a desk's window does for the desk. FrameWindowBorder.cpp handles the metallic border's messages.
#include "Host/console/win32/FrameWindow.h"

#include "Backend/core/installation/Product.h"
#include "Gui/MirelGuiIF.h"
#include "Gui/Rules/places/WindowMove.h"
#include "Gui/Utils/windows/UserMessages.h"
#include "Gui/Utils/windows/WindowClass.h"
#include "Gui/Utils/windows/WindowPlace.h"
#include "Gui/Utils/windows/WindowProcedure.h"
#include "Host/console/FramePlacement.h"
#include "Host/console/FrameTitle.h"
#include "Host/console/win32/ResourceIds.h"
#include "Host/console/win32/SingleInstance.h"

#include <shellapi.h>

#include <optional>
#include <utility>

namespace Host::Console {

namespace {

constexpr const char* CLASS_NAME = "MirelConsoleFrame";
constexpr UINT_PTR TIMER = 1;
constexpr UINT TIMER_INTERVAL = 500;  // In milliseconds.

void registerClassOnce() {
    static const HINSTANCE registered = Gui::registerWindowClass(CLASS_NAME, GetModuleHandleA(nullptr), DefWindowProcA);
    static_cast<void>(registered);
}

HICON loadIcon(int width, int height) {
    return static_cast<HICON>(
        LoadImageA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDI_MIREL_CONSOLE), IMAGE_ICON, width, height, 0));
}

// A desk may be smaller than other windows, and higher than the screen.
void freeOfLimits(MINMAXINFO& info) {
    constexpr LONG LARGEST = 0x7fff;
    info.ptMinTrackSize = {1, 1};
    info.ptMaxTrackSize = {LARGEST, LARGEST};
}

}

FrameWindow::FrameWindow(Listener& listener, const Options& options)
    : m_listener(listener),
      m_options(options),
      m_icon(loadIcon(GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON))),
      m_smallIcon(loadIcon(GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON))),
      m_title(MIREL_PRODUCT) {
    registerClassOnce();
    m_window =
        CreateWindowExA(WS_EX_APPWINDOW | (options.alwaysOnTop ? WS_EX_TOPMOST : 0u), CLASS_NAME, m_title.c_str(),
                        style(), 0, 0, 0, 0, nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
    SetWindowLongPtrA(m_window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetWindowLongPtrA(m_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&windowProcedure));
    SendMessageA(m_window, WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(m_icon));
    SendMessageA(m_window, WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(m_smallIcon));
    // The desk alone decides its size.
    const HMENU menu = GetSystemMenu(m_window, FALSE);
    DeleteMenu(menu, SC_SIZE, MF_BYCOMMAND);
    DeleteMenu(menu, SC_MAXIMIZE, MF_BYCOMMAND);
    DragAcceptFiles(m_window, TRUE);
    SetTimer(m_window, TIMER, TIMER_INTERVAL, nullptr);
    setDeskSize(0, 0);
}

FrameWindow::~FrameWindow() {
    DestroyWindow(m_window);
    DestroyIcon(m_icon);
    DestroyIcon(m_smallIcon);
}

void FrameWindow::setGui(Gui::MirelGuiIF* gui) {
    m_gui = gui;
    refreshTitle();
}

void FrameWindow::show(int command) {
    takeWaitingWishes();
    if (m_wasPlaced) {
        place(bringIntoReach(position(), workArea(), m_options.dockToBottomEdge));
    } else {
        const Rect middle = centreFrame(position(), workArea());
        place(m_options.dockToBottomEdge ? dockFrame(middle, workArea()) : middle);
    }
    refreshTitle();
    // The desk has the size of its screens, whatever a shortcut requests.
    ShowWindow(m_window, command == SW_SHOWMAXIMIZED ? SW_SHOWNORMAL : command);
    if (IsZoomed(m_window))
        ShowWindow(m_window, SW_RESTORE);
}

// Handles what the desk posted while it was being created.
void FrameWindow::takeWaitingWishes() {
    std::optional<int> exitCode;
    MSG message;
    while (PeekMessageA(&message, m_window, Gui::UM_SIZE_CHANGED, Gui::UM_MOVE_WINDOW, PM_REMOVE)) {
        if (message.message == WM_QUIT)  // It passes any filter.
            exitCode = static_cast<int>(message.wParam);
        else
            DispatchMessageA(&message);
    }
    if (exitCode)
        PostQuitMessage(*exitCode);
}

void FrameWindow::comeToFront() {
    if (IsIconic(m_window))
        ShowWindow(m_window, SW_RESTORE);
    SetForegroundWindow(m_window);
}

void FrameWindow::refreshTitle() {
    std::string title = MIREL_PRODUCT;
    if (m_gui) {
        const auto& program = static_cast<const Gui::MirelGuiIF*>(m_gui)->getCurrentProgram();
        title = makeFrameTitle(m_gui->getCurrentBankName(), program.getName(), program.getIndex(),
                               m_options.globalKeyboard);
    }
    if (title == m_title)
        return;
    m_title = title;
    SetWindowTextA(m_window, m_title.c_str());
    paintBorder();
}

LRESULT CALLBACK FrameWindow::windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* const self = reinterpret_cast<FrameWindow*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    return Gui::withoutExceptions([&] { return self->wndProc(message, wParam, lParam); });
}

LRESULT FrameWindow::wndProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (handleDeskMessage(message, wParam, lParam))
        return 0;
    if (LRESULT result = 0; m_options.useSkinBorder && handleBorderMessage(message, wParam, lParam, result))
        return result;
    switch (message) {
        case WM_CLOSE: m_listener.closeRequested(); return 0;
        case WM_ENDSESSION:
            if (wParam)
                m_listener.sessionEnds();
            return 0;
        case WM_TIMER: m_listener.timePassed(); return 0;
        case WM_SETFOCUS:
            if (m_gui)
                m_gui->setFocus();
            return 0;
        case WM_ERASEBKGND: paintBackground(reinterpret_cast<HDC>(wParam)); return 1;
        case WM_GETMINMAXINFO: freeOfLimits(*reinterpret_cast<MINMAXINFO*>(lParam)); return 0;
        case WM_DROPFILES: takeDroppedFiles(reinterpret_cast<HDROP>(wParam)); return 0;
        case WM_COPYDATA: return takeRequest(*reinterpret_cast<const COPYDATASTRUCT*>(lParam)) ? TRUE : FALSE;
        case WM_DISPLAYCHANGE: comeIntoReach(); break;
        default: break;
    }
    return DefWindowProcA(m_window, message, wParam, lParam);
}

void FrameWindow::paintBackground(HDC dc) const {
    RECT client;
    GetClientRect(m_window, &client);
    FillRect(dc, &client, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
}

// Handles a request from another start of the program. A desk that is closing leaves it to that one, which then starts
// itself.
bool FrameWindow::takeRequest(const COPYDATASTRUCT& data) {
    OpenRequest request;
    if (!m_listener.canOpen() || !SingleInstance::read(data, request))
        return false;
    // The sender waits, and must not be kept waiting by a message box that this may open.
    ReplyMessage(TRUE);
    comeToFront();
    m_listener.openRequested(request);
    return true;
}

bool FrameWindow::handleDeskMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case Gui::UM_SIZE_CHANGED: setDeskSize(static_cast<int>(wParam), static_cast<int>(lParam)); return true;
        case Gui::UM_DOCK_CHANGED: setDock(wParam != 0); return true;
        case Gui::UM_ALWAYS_ON_TOP_CHANGED: setAlwaysOnTop(wParam != 0); return true;
        case Gui::UM_SKIN_BORDER_CHANGED: setSkinBorder(wParam != 0); return true;
        case Gui::UM_GLOBAL_KEYBOARD_CHANGED:
            m_options.globalKeyboard = wParam != 0;
            refreshTitle();
            return true;
        case Gui::UM_BANK_CHANGED: refreshTitle(); return true;
        case Gui::UM_MOVE_WINDOW:
            m_wasPlaced = m_wasPlaced || !Gui::unpackWindowMove(wParam).isRelative();
            place(moveFrame(position(), wParam, static_cast<std::uintptr_t>(lParam)));
            return true;
        case Gui::UM_SYSTEM_PANEL_SHOWN:
        case Gui::UM_MIDI_THRU_CHANGED: return true;  // The desk shows both itself.
        default: return false;
    }
}

DWORD FrameWindow::style() const {
    constexpr DWORD COMMON = WS_SYSMENU | WS_MINIMIZEBOX | WS_CLIPCHILDREN;
    // Without a caption the system draws nothing of its own.
    return COMMON | (m_options.useSkinBorder ? WS_POPUP : WS_OVERLAPPED | WS_CAPTION);
}

void FrameWindow::setDeskSize(int width, int height) {
    m_deskSize = {width, height};
    Rect rect = position();
    RECT size{0, 0, width, height};
    if (m_options.useSkinBorder) {
        const FrameLayout wanted = FrameLayout::around(width, height);
        size = {0, 0, wanted.width(), wanted.height()};
    } else {
        AdjustWindowRectEx(&size, style(), FALSE, WS_EX_APPWINDOW);
    }
    rect.right = rect.left + (size.right - size.left);
    rect.bottom = rect.top + (size.bottom - size.top);
    place(rect);
}

// The desk stays where it is on the screen while the border changes around it; a docked one keeps its lower edge.
void FrameWindow::setSkinBorder(bool useSkinBorder) {
    if (useSkinBorder == m_options.useSkinBorder)
        return;
    POINT before{0, 0};
    ClientToScreen(m_window, &before);
    const std::int32_t bottom = position().bottom;
    m_options.useSkinBorder = useSkinBorder;
    m_look = {GetActiveWindow() == m_window, FramePart::OUTSIDE, FramePart::OUTSIDE};
    const DWORD visible = static_cast<DWORD>(GetWindowLongPtrA(m_window, GWL_STYLE)) & (WS_VISIBLE | WS_MINIMIZE);
    SetWindowLongPtrA(m_window, GWL_STYLE, static_cast<LONG_PTR>(style() | visible));
    SetWindowPos(m_window, nullptr, 0, 0, 0, 0,
                 SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    setDeskSize(m_deskSize.cx, m_deskSize.cy);
    POINT after{0, 0};
    ClientToScreen(m_window, &after);
    if (!IsIconic(m_window)) {
        Rect rect = position();
        const std::int32_t dx = before.x - after.x;
        const std::int32_t dy = m_options.dockToBottomEdge ? bottom - rect.bottom : before.y - after.y;
        place({rect.left + dx, rect.top + dy, rect.right + dx, rect.bottom + dy});
    }
    RedrawWindow(m_window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

void FrameWindow::setAlwaysOnTop(bool alwaysOnTop) {
    m_options.alwaysOnTop = alwaysOnTop;
    SetWindowPos(m_window, alwaysOnTop ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

// From here on the desk itself keeps the lower edge in place.
void FrameWindow::setDock(bool dock) {
    const bool wasDocked = std::exchange(m_options.dockToBottomEdge, dock);
    if (dock && !wasDocked)
        place(dockFrame(position(), workArea()));
}

void FrameWindow::place(const Rect& rect) {
    Gui::placeWindow(m_window, rect);
}

Rect FrameWindow::position() const {
    return Gui::windowPlace(m_window);
}

Rect FrameWindow::workArea() const {
    return Gui::fromWindows(Gui::monitorNear(position()).rcWork);
}

// When a screen disappears, the desk must remain reachable.
void FrameWindow::comeIntoReach() {
    const RECT rect = Gui::toWindows(position());
    if (!MonitorFromRect(&rect, MONITOR_DEFAULTTONULL))
        place(centreFrame(position(), workArea()));
    else if (m_options.dockToBottomEdge && rect.bottom > workArea().bottom)
        place(dockFrame(position(), workArea()));
    else
        place(bringIntoReach(position(), workArea(), m_options.dockToBottomEdge));
}

void FrameWindow::takeDroppedFiles(HDROP drop) {
    OpenRequest request;
    const UINT count = DragQueryFileA(drop, 0xffffffff, nullptr, 0);
    for (UINT i = 0; i < count; ++i) {
        std::string path(DragQueryFileA(drop, i, nullptr, 0) + 1, '\0');
        path.resize(DragQueryFileA(drop, i, path.data(), static_cast<UINT>(path.size())));
        request.files.push_back(path);
    }
    DragFinish(drop);
    comeToFront();
    m_listener.openRequested(request);
}

}
