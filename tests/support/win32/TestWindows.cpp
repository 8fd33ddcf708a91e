#include "tests/support/win32/TestWindows.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace TestSupport {

namespace {

constexpr const char* CLASS_NAME = "MirelTestWindow";
constexpr const char* OBJECT = "TestWindow";

}

void pump() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

TestWindow::TestWindow(int width, int height) {
    static const bool registered = [] {
        WNDCLASSA windowClass{};
        windowClass.lpfnWndProc = windowProcedure;
        windowClass.hInstance = GetModuleHandleA(nullptr);
        windowClass.hCursor = LoadCursorA(nullptr, IDC_ARROW);
        windowClass.lpszClassName = CLASS_NAME;
        return RegisterClassA(&windowClass) != 0;
    }();
    static_cast<void>(registered);
    m_window = CreateWindowExA(WS_EX_TOPMOST, CLASS_NAME, "", WS_POPUP | WS_VISIBLE, 50, 50, width, height, nullptr,
                               nullptr, GetModuleHandleA(nullptr), nullptr);
    SetPropA(m_window, OBJECT, this);
    SetForegroundWindow(m_window);
    pump();
    forgetMessages();
}

TestWindow::~TestWindow() {
    RemovePropA(m_window, OBJECT);
    DestroyWindow(m_window);
    pump();
}

std::vector<TestWindow::Message> TestWindow::received(UINT id) const {
    std::vector<Message> found;
    for (const Message& message : m_messages)
        if (message.id == id)
            found.push_back(message);
    return found;
}

LRESULT CALLBACK TestWindow::windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (auto* const self = static_cast<TestWindow*>(GetPropA(window, OBJECT))) {
        self->m_messages.push_back({message, wParam, lParam});
        const LRESULT result = self->answer ? self->answer({message, wParam, lParam}) : 0;
        if (result != 0)
            return result;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

Picture::Picture(HWND window) {
    RECT rect{};
    GetClientRect(window, &rect);
    m_width = rect.right;
    m_height = rect.bottom;
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    const HDC source = GetDC(window);
    const HDC memory = CreateCompatibleDC(nullptr);
    BITMAPINFO info{};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), m_width, -m_height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    const HBITMAP bitmap = CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HGDIOBJ old = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, m_width, m_height, source, 0, 0, SRCCOPY);
    GdiFlush();
    const auto* pixels = static_cast<const DWORD*>(bits);
    m_pixels.assign(pixels, pixels + m_width * m_height);
    SelectObject(memory, old);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(window, source);
}

COLORREF Picture::at(int x, int y) const {
    if (x < 0 || y < 0 || x >= m_width || y >= m_height)
        return 0;
    const DWORD pixel = m_pixels[static_cast<std::size_t>(y * m_width + x)];
    return RGB(pixel >> 16 & 0xff, pixel >> 8 & 0xff, pixel & 0xff);
}

int Picture::count(COLORREF colour, const RECT& part) const {
    int found = 0;
    for (int y = part.top; y < part.bottom; ++y)
        for (int x = part.left; x < part.right; ++x)
            found += at(x, y) == colour ? 1 : 0;
    return found;
}

int Picture::firstRowWith(COLORREF colour) const {
    for (int y = 0; y < m_height; ++y)
        if (count(colour, {0, y, m_width, y + 1}) > 0)
            return y;
    return -1;
}

void Picture::save(const std::string& name) const {
    const char* folder = std::getenv("MIREL_SHOTS");
    if (!folder)
        return;
    std::ofstream file(std::string(folder) + "/" + name + ".bmp", std::ios::binary);
    const DWORD size = static_cast<DWORD>(m_pixels.size() * sizeof(DWORD));
    BITMAPFILEHEADER header{};
    header.bfType = 0x4d42;
    header.bfOffBits = sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER);
    header.bfSize = header.bfOffBits + size;
    const BITMAPINFOHEADER info{sizeof(BITMAPINFOHEADER), m_width, -m_height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    file.write(reinterpret_cast<const char*>(&header), sizeof header);
    file.write(reinterpret_cast<const char*>(&info), sizeof info);
    file.write(reinterpret_cast<const char*>(m_pixels.data()), static_cast<std::streamsize>(size));
}

RECT rectInParent(HWND window) {
    RECT rect{};
    GetWindowRect(window, &rect);
    MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

POINT onScreen(HWND window, int x, int y) {
    POINT point{x, y};
    ClientToScreen(window, &point);
    return point;
}

void movePointer(HWND window, int x, int y) {
    const POINT point = onScreen(window, x, y);
    SetCursorPos(point.x, point.y);
    pumpUntil([&] {
        POINT now{};
        GetCursorPos(&now);
        return now.x == point.x && now.y == point.y;
    });
}

void mouseButton(DWORD flags) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    SendInput(1, &input, sizeof input);
    pump();
}

void clickLeft(HWND window, int x, int y) {
    movePointer(window, x, y);
    mouseButton(MOUSEEVENTF_LEFTDOWN);
    mouseButton(MOUSEEVENTF_LEFTUP);
}

void releaseButtons() {
    if (GetAsyncKeyState(VK_LBUTTON) < 0)
        mouseButton(MOUSEEVENTF_LEFTUP);
    if (GetAsyncKeyState(VK_RBUTTON) < 0)
        mouseButton(MOUSEEVENTF_RIGHTUP);
    if (GetAsyncKeyState(VK_MBUTTON) < 0)
        mouseButton(MOUSEEVENTF_MIDDLEUP);
    pump();
}

void keyForMenu(HWND owner, WPARAM key) {
    PostMessageA(owner, WM_KEYDOWN, key, 1);
}

bool endMenuOf(DWORD thread) {
    const auto owner = [thread] {
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        return GetGUIThreadInfo(thread, &info) ? info.hwndMenuOwner : nullptr;
    };
    // The menu may not be ready for it at once.
    return eventually([&] { return owner() != nullptr; }) && eventually([&] {
               PostMessageA(owner(), WM_CANCELMODE, 0, 0);
               return owner() == nullptr;
           });
}

OtherThread::OtherThread(std::function<void()> work) : m_work(std::move(work)) {
    m_thread = CreateThread(
        nullptr, 0,
        [](void* self) -> DWORD {
            static_cast<OtherThread*>(self)->m_work();
            return 0;
        },
        this, 0, nullptr);
}

OtherThread::~OtherThread() {
    WaitForSingleObject(m_thread, INFINITE);
    CloseHandle(m_thread);
}

HWND waitForDialog(const std::function<bool(HWND)>& condition) {
    struct Search {
        const std::function<bool(HWND)>& condition;
        HWND found = nullptr;
    } search{condition};
    eventually([&] {
        EnumWindows(
            [](HWND window, LPARAM parameter) -> BOOL {
                auto& looking = *reinterpret_cast<Search*>(parameter);
                char name[20] = "";
                DWORD process = 0;
                GetClassNameA(window, name, sizeof name);
                GetWindowThreadProcessId(window, &process);
                if (process == GetCurrentProcessId() && std::string(name) == "#32770" && IsWindowVisible(window) &&
                    looking.condition(window))
                    looking.found = window;
                return looking.found == nullptr;
            },
            reinterpret_cast<LPARAM>(&search));
        return search.found != nullptr;
    });
    return search.found;
}

std::string textOf(HWND window) {
    char text[300] = "";
    SendMessageA(window, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
    return text;
}

}
