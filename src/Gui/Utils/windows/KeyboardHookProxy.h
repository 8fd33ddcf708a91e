#pragma once

#include <windows.h>

#include <string>

class Key;

namespace Gui {

// The library that catches keys while another program has the keyboard. It stands beside the program and may be
// missing, as may any of its functions; operations then do nothing. [gui], but for the construction.
class KeyboardHookProxy {
public:
    static constexpr const char* LIBRARY = "\\KeyboardHook_64.dll";

    // A control key's effect on the hook.
    enum Action : int { toggle = -1, off = 0, on = 1 };

    // Loads the library from a folder, given without a separator at its end.
    explicit KeyboardHookProxy(const std::string& folder);

    // The library is freed, so its hook must be off.
    ~KeyboardHookProxy();
    KeyboardHookProxy(const KeyboardHookProxy&) = delete;
    KeyboardHookProxy& operator=(const KeyboardHookProxy&) = delete;

    // The window that gets the keys, as ordinary key messages, and the message of getStateMessage().
    void setWindowHandle(HWND window) const;

    // Whether keys are taken.
    void setEnabled(bool enabled) const;

    // Keys that pass to the program in front.
    void setExcludeKey(const Key& key, bool excluded) const;
    void clearExclude() const;

    // Keys that switch the hook itself, also while it is off: when they go up, or else down.
    void clearControlKeys() const;
    void addControlKey(const Key& key, bool onKeyUp, Action action) const;

    // [any] What the window gets when a control key has switched the hook: w is whether it is on now.
    static UINT getStateMessage();

private:
    // As the library exports them.
    using SetWindowHandle = void (*)(HWND window);
    using SetEnabled = void (*)(bool enabled);
    using SetExcludeKey = void (*)(int code, bool shift, bool control, bool alt, bool win, bool excluded);
    using Clear = void (*)();
    using AddControlKey = void (*)(int code, bool shift, bool control, bool alt, bool win, bool onKeyUp, int action);

    template <class Function>
    void find(Function& function, const char* name) const;

    HMODULE m_library = nullptr;
    SetWindowHandle m_setWindowHandle = nullptr;
    SetEnabled m_setEnabled = nullptr;
    SetExcludeKey m_setExcludeKey = nullptr;
    Clear m_clearExclude = nullptr;
    Clear m_clearControlKeys = nullptr;
    AddControlKey m_addControlKey = nullptr;
};

}
