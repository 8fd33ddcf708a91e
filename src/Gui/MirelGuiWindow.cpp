// The messages of the window and the keys of the computer's keyboard.
#include "Gui/MirelGui.h"

#include "Backend/core/MirelIF.h"
#include "Backend/core/MirelMessageManager.h"
#include "Backend/core/WindowMessages.h"
#include "Backend/core/messages/MessageRanges.h"
#include "Backend/functions/values/OnOffToggle.h"
#include "Backend/functions/values/RelativeFixedValue.h"
#include "Gui/ResourceIds.h"
#include "Gui/Rules/keys/KeyTranslation.h"
#include "Gui/Utils/windows/UserMessages.h"
#include "Gui/Utils/windows/WindowClass.h"
#include "Gui/Utils/windows/WindowProcedure.h"
#include "Platform/Shell.h"

#include <windowsx.h>

#include <optional>

namespace Gui {

namespace {

constexpr const char* OBJECT = "MirelGui";

bool isDown(int virtualKey) {
    return GetAsyncKeyState(virtualKey) < 0;
}

KeyModifiers readModifiers() {
    return {isDown(VK_SHIFT), isDown(VK_CONTROL), isDown(VK_MENU), isDown(VK_LWIN) || isDown(VK_RWIN)};
}

}

void MirelGui::registerClassOnce() {
    static const bool registered = registerWindowClass(
        "MirelGuiWindow2008LE", static_cast<HINSTANCE>(Platform::getModuleInstance()), windowProcStatic);
    static_cast<void>(registered);
}

LRESULT CALLBACK MirelGui::windowProcStatic(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_CREATE)
        setObject(window, OBJECT, reinterpret_cast<CREATESTRUCTA*>(lParam)->lpCreateParams);
    auto* const self = getObject<MirelGui>(window, OBJECT);
    if (message == WM_NCDESTROY)
        RemovePropA(window, OBJECT);
    if (!self)
        return DefWindowProcA(window, message, wParam, lParam);
    return withoutExceptions([&] { return self->windowProc(window, message, wParam, lParam); });
}

LRESULT MirelGui::windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (m_guiMessageManagerMaster.wantMessage(message))
        return m_guiMessageManagerMaster.handleMessage(window, message, wParam, lParam);
    if (message == KeyboardHookProxy::getStateMessage()) {
        handleHookChanged(wParam != 0);
        return 0;
    }
    switch (message) {
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN: handleKeyDown(wParam, lParam); return 0;
        case WM_KEYUP:
        case WM_SYSKEYUP: handleKeyUp(wParam, lParam); return 0;
        case WM_DESTROY: handleDestroy(window); return 0;
        case WM_NCDESTROY:
            m_windowHandle = nullptr;
            m_focusWindow = nullptr;
            return 0;
        case WM_SIZE:
            m_windowHandle = window;  // The first message comes before the creation has returned.
            handleSize(wParam, lParam);
            return 0;
        case WM_ERASEBKGND: {
            RECT client;
            GetClientRect(window, &client);
            FillRect(reinterpret_cast<HDC>(wParam), &client, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
            return 1;
        }
        case WM_LBUTTONDOWN:
        case UM_RETURN_FOCUS: setFocus(); return 0;
        case WM_MOUSEWHEEL: handleMouseWheel(wParam, lParam); return 0;
        case UM_HOVER: m_helpPanel.showHelp(reinterpret_cast<HWND>(lParam)); return 0;
        case WM_SYSCHAR: return 0;  // Keeps Alt with a key from beeping.
        default: return DefWindowProcA(window, message, wParam, lParam);
    }
}

// In a plug-in another program takes the main window's keys, so this control has the keyboard instead.
LRESULT CALLBACK MirelGui::focusControlProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    constexpr const char* ORIGINAL = "ORIG_PROC";
    switch (message) {
        case WM_KEYDOWN:
        case WM_KEYUP:
        case WM_SYSKEYDOWN:
        case WM_SYSKEYUP:
        case WM_MOUSEWHEEL: return SendMessageA(GetParent(window), message, wParam, lParam);
        case WM_DESTROY: return passOnForTheLastTime(window, ORIGINAL, message, wParam, lParam);
        default: return callOriginal(window, ORIGINAL, message, wParam, lParam);
    }
}

void MirelGui::setFocus() {
    SetFocus(m_isVstPlugin ? m_focusWindow : m_windowHandle);
}

void MirelGui::handleKeyDown(WPARAM wParam, LPARAM lParam) {
    const auto virtualKey = static_cast<std::uint32_t>(wParam);
    if (virtualKey == VirtualKeys::SHIFT) {
        KeyboardState state{};
        if (GetKeyboardState(state.data()) && isAnotherKeyThanShiftDown(state))
            return;
    }
    const Key key = makePressedKey(virtualKey, isExtendedKey(lParam), readModifiers());
    if (key.getCode() != Key::NO_KEY) {
        if (!m_heldKeys.press(key, wasKeyDown(lParam)))
            return;
        auto& keyboard = m_computerInputPanel.getMainPanel().getComputerKeyboardCtl();
        keyboard.setPressed(key, true);
        keyboard.redraw();
    }
    getMirelMessageManager().postKeyDown(key, wasKeyDown(lParam));
}

void MirelGui::handleKeyUp(WPARAM wParam, LPARAM lParam) {
    const auto virtualKey = static_cast<std::uint32_t>(wParam);
    const Key key = makeReleasedKey(virtualKey, isExtendedKey(lParam), readModifiers());
    const bool isNews = m_heldKeys.release(key.getCode());
    if (virtualKey == VirtualKeys::LEFT_WIN || !isNews)
        return;
    showKeyReleased(key);
    getMirelMessageManager().postKeyUp(key);
}

void MirelGui::showKeyReleased(const Key& key) {
    auto& keyboard = m_computerInputPanel.getMainPanel().getComputerKeyboardCtl();
    if (m_computerInputPanel.getUseKeyUpMod())
        keyboard.setPressed(key, false);
    else
        keyboard.releaseAllOfCode(key.getCode());
    keyboard.redraw();
}

// Whoever gets the keyboard now will get the releases of these keys instead of the desk, and their notes would hang.
void MirelGui::releaseHeldKeys() {
    for (const Key& key : m_heldKeys.takeAll()) {
        showKeyReleased(key);
        getMirelMessageManager().postKeyUp(key);
    }
}

void MirelGui::handleSize(WPARAM wParam, LPARAM lParam) {
    SendMessageA(m_parentWindow, UM_SIZE_CHANGED, LOWORD(lParam), HIWORD(lParam));
    if (wParam == SIZE_MINIMIZED)
        return;
    RECT rect;
    GetWindowRect(m_windowHandle, &rect);
    const int height = rect.bottom - rect.top;
    if (m_settings.getDockToBottomEdge())
        moveWindow({true, 0}, {true, m_previousHeight - height});
    m_previousHeight = height;
}

// The wheel turns what is under the pointer, whatever has the keyboard.
void MirelGui::handleMouseWheel(WPARAM wParam, LPARAM lParam) const {
    const HWND window = WindowFromPoint({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
    // To windows of other programs, the number means something else.
    if (window && GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId())
        SendMessageA(window, UM_MOUSEWHEEL, wParam, lParam);
}

bool MirelGui::hasKeyboard() const {
    const HWND focus = GetFocus();
    return focus && (focus == m_windowHandle || focus == m_focusWindow);
}

void MirelGui::handleHookChanged(bool globalKeyboard) {
    m_settings.setGlobalKeyboard(globalKeyboard);
    showGlobalKeyboard();
    postToHost(UM_GLOBAL_KEYBOARD_CHANGED, globalKeyboard);
}

void MirelGui::handleDestroy(HWND window) {
    releaseHeldKeys();
    m_mirelIF.setGuiWindowHandle(nullptr);
    takeLastMessages(window);
    m_screenState.system = m_systemPanel.isVisible();
    m_screenState.help = m_helpPanel.isVisible();
    m_screenState.display = m_displayPanel.isVisible();
    m_screenState.computerInput = m_computerInputPanel.isVisible();
    m_screenState.control = m_controlPanel.isVisible();
    m_screenState.output = m_outputPanel.isVisible();
    m_screenState.layer = m_outputPanel.getLayerPanel().isVisible();
    m_screenState.cc = m_outputPanel.getCcPanel().isVisible();
    m_screenState.zone = m_outputPanel.getZonePanel().isVisible();
    getMirelMessageManager().postSetScreenState(m_screenState);
    m_settings.setLastWindowPosition(getMainWindowPosition());
    getMirelMessageManager().postSetLastWindowPosition(m_settings.getLastWindowPosition());
    getMirelMessageManager().postRemoveGuiWindowHandle();
}

// The receiver of a message owns the objects that the desk sent in it, and the system silently drops messages to a
// window that is gone.
void MirelGui::takeLastMessages(HWND window) {
    std::optional<int> exitCode;
    MSG message;
    while (PeekMessageA(&message, window, Backend::MIREL_GUI_RANGE.first, Backend::ZONE_GUI_RANGE.last, PM_REMOVE)) {
        if (message.message == WM_QUIT)  // It passes any filter.
            exitCode = static_cast<int>(message.wParam);
        // A menu would wait for a choice.
        if (message.hwnd != window || message.message == Backend::WindowMessages::SHOW_PROGRAM_MENU.NUMBER ||
            message.message == Backend::WindowMessages::SHOW_DEFAULT_MIDI_OUTPUT_MENU.NUMBER)
            continue;
        withoutExceptions([&] {
            return m_guiMessageManagerMaster.handleMessage(window, message.message, message.wParam, message.lParam);
        });
    }
    if (exitCode)
        PostQuitMessage(*exitCode);
}

void MirelGui::buttonChanged(int id, bool state) {
    const OnOffToggle toggle(state ? OnOffToggle::ON : OnOffToggle::OFF);
    switch (id) {
        case IDC_MAIN_RESET: getMirelMessageManager().postResetMirel(); break;
        case IDC_MAIN_THRU: getMirelMessageManager().postChangeMidiThru(toggle, true); break;
        case IDC_MAIN_GLOBAL_KEY: getMirelMessageManager().postChangeGlobalKeyboard(toggle, true); break;
        default: break;
    }
}

}
