#pragma once

#include <windows.h>

#include <string>

class Key;

namespace Gui {

// The library that catches keys while another program has the keyboard. It lies beside the program. It, or any of its
// functions, may be missing; operations then do nothing. [gui], except the construction.
class KeyboardHookProxy {
public:
    static constexpr const char* LIBRARY = "\\KeyboardHook_64.dll";

    // What a control key does to the hook.
    enum Action : int { toggle = -1, off = 0, on = 1 };

    // Loads the library from a folder, given without a trailing separator.
    explicit KeyboardHookProxy(const std::string& folder);

    // Frees the library, so its hook must be off.
    ~KeyboardHookProxy();
    KeyboardHookProxy(const KeyboardHookProxy&) = delete;
    KeyboardHookProxy& operator=(const KeyboardHookProxy&) = delete;

    // The window that gets the keys, as ordinary key messages, and the message of getStateMessage().
    void setWindowHandle(HWND window) const;

    // Whether keys are taken.
    void setEnabled(bool enabled) const;

    // Keys that are passed to the program in front.
    void setExcludeKey(const Key& key, bool excluded) const;
    void clearExclude() const;

    // Keys that switch the hook itself, even while it is off: on release, or else on press.
    void clearControlKeys() const;
    void addControlKey(const Key& key, bool onKeyUp, Action action) const;

    // [any] The message that the window gets when a control key has switched the hook; w is whether it is on now.
    static UINT getStateMessage();

private:
    // The types that the library exports.
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
