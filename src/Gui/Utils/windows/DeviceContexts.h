// Device contexts and what is selected into them, released in the right order.
#pragma once

#include <windows.h>

namespace Gui {

// Between BeginPaint and EndPaint of a window, in its WM_PAINT.
class PaintScope {
public:
    explicit PaintScope(HWND window) : m_window(window) { BeginPaint(window, &m_paint); }
    ~PaintScope() { EndPaint(m_window, &m_paint); }
    PaintScope(const PaintScope&) = delete;
    PaintScope& operator=(const PaintScope&) = delete;

    HDC dc() const { return m_paint.hdc; }
    const RECT& rect() const { return m_paint.rcPaint; }

private:
    HWND m_window;
    PAINTSTRUCT m_paint{};
};

// A window's client area, or all of it with its frame.
class WindowDc {
public:
    explicit WindowDc(HWND window) : m_window(window), m_dc(GetDC(window)) {}
    WindowDc(HWND window, DWORD flags) : m_window(window), m_dc(GetDCEx(window, nullptr, flags)) {}
    ~WindowDc() { ReleaseDC(m_window, m_dc); }
    WindowDc(const WindowDc&) = delete;
    WindowDc& operator=(const WindowDc&) = delete;

    HDC dc() const { return m_dc; }

private:
    HWND m_window;
    HDC m_dc;
};

// Selects a font, pen, brush or bitmap for the length of a block.
class SelectScope {
public:
    SelectScope(HDC dc, HGDIOBJ object) : m_dc(dc), m_old(SelectObject(dc, object)) {}
    ~SelectScope() { SelectObject(m_dc, m_old); }
    SelectScope(const SelectScope&) = delete;
    SelectScope& operator=(const SelectScope&) = delete;

private:
    HDC m_dc;
    HGDIOBJ m_old;
};

// A picture in memory, compatible with another device if necessary.
class MemoryDc {
public:
    MemoryDc(HDC like, int width, int height)
        : m_dc(CreateCompatibleDC(like)),
          m_bitmap(CreateCompatibleBitmap(like, width, height)),
          m_old(SelectObject(m_dc, m_bitmap)) {}
    ~MemoryDc() {
        SelectObject(m_dc, m_old);
        DeleteObject(m_bitmap);
        DeleteDC(m_dc);
    }
    MemoryDc(const MemoryDc&) = delete;
    MemoryDc& operator=(const MemoryDc&) = delete;

    HDC dc() const { return m_dc; }

private:
    HDC m_dc;
    HBITMAP m_bitmap;
    HGDIOBJ m_old;
};

}
