// A keyboard hook that hooks nothing and records how it was called.
#include <windows.h>

#include <string>
#include <utility>

namespace {

std::string calls;

void add(const std::string& call) {
    calls += call + "\n";
}

std::string describe(int code, bool shift, bool control, bool alt, bool win) {
    return " " + std::to_string(code) + (shift ? " shift" : "") + (control ? " control" : "") + (alt ? " alt" : "") +
           (win ? " win" : "");
}

}

extern "C" {

__declspec(dllexport) void setWindowHandle(HWND window) {
    add(window ? "setWindowHandle window" : "setWindowHandle none");
}

__declspec(dllexport) void setEnabled(bool enabled) {
    add(enabled ? "setEnabled on" : "setEnabled off");
}

__declspec(dllexport) void setExcludeKey(int code, bool shift, bool control, bool alt, bool win, bool excluded) {
    add("setExcludeKey" + describe(code, shift, control, alt, win) + (excluded ? " excluded" : " taken"));
}

__declspec(dllexport) void clearExclude() {
    add("clearExclude");
}

__declspec(dllexport) void clearControlKeys() {
    add("clearControlKeys");
}

__declspec(dllexport) void addControlKey(int code, bool shift, bool control, bool alt, bool win, bool onKeyUp,
                                         int action) {
    add("addControlKey" + describe(code, shift, control, alt, win) + (onKeyUp ? " up " : " down ") +
        std::to_string(action));
}

// For the test: all calls since the last one, one per line. Valid until the next call.
__declspec(dllexport) const char* takeCalls() {
    static std::string taken;
    taken = std::exchange(calls, {});
    return taken.c_str();
}
}
