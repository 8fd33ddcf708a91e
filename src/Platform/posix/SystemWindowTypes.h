#pragma once

#include <cstdint>

// A window is any object that receives what is posted to it (see Platform/WindowSink.h).
struct WindowHandle;
using HWND = WindowHandle*;

using UINT = std::uint32_t;
using DWORD = std::uint32_t;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;

struct MSG {
    HWND hwnd = nullptr;
    UINT message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
};

inline constexpr UINT WM_QUIT = 0x0012;
inline constexpr UINT WM_APP = 0x8000;
