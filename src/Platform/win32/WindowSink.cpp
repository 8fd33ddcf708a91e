#include "Platform/WindowSink.h"

#include <cstdint>

namespace Platform {

namespace {

// Window handles hold 32 bits, zero- or sign-extended; addresses of a process leave the upper 16 bits empty. A mark up
// there distinguishes a sink from both.
constexpr std::uintptr_t MARK = 0x51A5;
constexpr int MARK_SHIFT = 48;
constexpr std::uintptr_t ADDRESS_BITS = (std::uintptr_t{1} << MARK_SHIFT) - 1;

}

HWND WindowSink::handle() {
    return reinterpret_cast<HWND>(reinterpret_cast<std::uintptr_t>(this) | MARK << MARK_SHIFT);
}

bool postToWindow(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto bits = reinterpret_cast<std::uintptr_t>(window);
    if (bits == 0)
        return false;
    if (bits >> MARK_SHIFT != MARK)
        return PostMessageA(window, message, wParam, lParam) != FALSE;
    reinterpret_cast<WindowSink*>(bits & ADDRESS_BITS)->windowMessage(message, wParam, lParam);
    return true;
}

}
