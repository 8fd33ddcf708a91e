#include "Gui/Utils/windows/KeyboardHookProxy.h"

#include "Backend/input/Key.h"

namespace Gui {

namespace {

// Null if the file is missing or is not a library; the system shows the user no message about it.
HMODULE loadSilently(const std::string& path) {
    DWORD before = 0;
    const BOOL isSilent = SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, &before);
    const HMODULE library = LoadLibraryA(path.c_str());
    if (isSilent)
        SetThreadErrorMode(before, nullptr);
    return library;
}

}

KeyboardHookProxy::KeyboardHookProxy(const std::string& folder) : m_library(loadSilently(folder + LIBRARY)) {
    if (!m_library)
        return;
    find(m_setWindowHandle, "setWindowHandle");
    find(m_setEnabled, "setEnabled");
    find(m_setExcludeKey, "setExcludeKey");
    find(m_clearExclude, "clearExclude");
    find(m_clearControlKeys, "clearControlKeys");
    find(m_addControlKey, "addControlKey");
}

KeyboardHookProxy::~KeyboardHookProxy() {
    if (m_library)
        FreeLibrary(m_library);
}

template <class Function>
void KeyboardHookProxy::find(Function& function, const char* name) const {
    // The only legal conversion from the system's function type to the function's own.
    function = reinterpret_cast<Function>(reinterpret_cast<void (*)()>(GetProcAddress(m_library, name)));
}

void KeyboardHookProxy::setWindowHandle(HWND window) const {
    if (m_setWindowHandle)
        m_setWindowHandle(window);
}

void KeyboardHookProxy::setEnabled(bool enabled) const {
    if (m_setEnabled)
        m_setEnabled(enabled);
}

void KeyboardHookProxy::setExcludeKey(const Key& key, bool excluded) const {
    if (m_setExcludeKey)
        m_setExcludeKey(key.getCode(), key.isShift(), key.isControl(), key.isAlt(), key.isWin(), excluded);
}

void KeyboardHookProxy::clearExclude() const {
    if (m_clearExclude)
        m_clearExclude();
}

void KeyboardHookProxy::clearControlKeys() const {
    if (m_clearControlKeys)
        m_clearControlKeys();
}

void KeyboardHookProxy::addControlKey(const Key& key, bool onKeyUp, Action action) const {
    if (m_addControlKey)
        m_addControlKey(key.getCode(), key.isShift(), key.isControl(), key.isAlt(), key.isWin(), onKeyUp, action);
}

UINT KeyboardHookProxy::getStateMessage() {
    static const UINT message = RegisterWindowMessageA("UD_KEYBOARDHOOK_GLOBAL_KEY_CHANGED");
    return message;
}

}
