// Handles of the system's graphics, each owned by an object.
#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>
#include <utility>

namespace WindowsLib {

// One handle, deleted with the object. An empty object has a null handle.
template <class Handle>
class GdiObject {
public:
    GdiObject() = default;
    explicit GdiObject(Handle handle) : m_handle(handle) {}
    ~GdiObject() {
        if (m_handle)
            DeleteObject(m_handle);
    }
    GdiObject(const GdiObject&) = delete;
    GdiObject& operator=(const GdiObject&) = delete;
    GdiObject(GdiObject&& other) noexcept : m_handle(std::exchange(other.m_handle, nullptr)) {}
    GdiObject& operator=(GdiObject&& other) noexcept {
        std::swap(m_handle, other.m_handle);
        return *this;
    }

    Handle handle() const { return m_handle; }

    // Gives the handle's ownership to the caller.
    Handle release() { return std::exchange(m_handle, nullptr); }

private:
    Handle m_handle = nullptr;
};

// A solid brush that remembers its colour.
class Brush {
public:
    explicit Brush(COLORREF colour) : m_brush(CreateSolidBrush(colour)), m_colour(colour) {}
    Brush(const Brush& other) : Brush(other.m_colour) {}
    Brush& operator=(const Brush& other) {
        if (this != &other)
            *this = Brush(other.m_colour);
        return *this;
    }
    Brush(Brush&&) = default;
    Brush& operator=(Brush&&) = default;
    ~Brush() = default;

    HBRUSH handle() const { return m_brush.handle(); }
    COLORREF colour() const { return m_colour; }

private:
    GdiObject<HBRUSH> m_brush;
    COLORREF m_colour;
};

// A solid pen.
class Pen {
public:
    Pen(int width, COLORREF colour) : m_pen(CreatePen(PS_SOLID, width, colour)), m_width(width), m_colour(colour) {}
    Pen(const Pen& other) : Pen(other.m_width, other.m_colour) {}
    Pen& operator=(const Pen& other) {
        if (this != &other)
            *this = Pen(other.m_width, other.m_colour);
        return *this;
    }
    Pen(Pen&&) = default;
    Pen& operator=(Pen&&) = default;
    ~Pen() = default;

    HPEN handle() const { return m_pen.handle(); }
    COLORREF colour() const { return m_colour; }
    int width() const { return m_width; }

private:
    GdiObject<HPEN> m_pen;
    int m_width;
    COLORREF m_colour;
};

// A font; copies share it.
class Font {
public:
    // The height as in CreateFont: negative for the characters' height, positive for the cells'.
    Font(const char* face, int height, int weight)
        : m_font(std::make_shared<GdiObject<HFONT>>(
              CreateFontA(height, 0, 0, 0, weight, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, face))) {}

    HFONT handle() const { return m_font->handle(); }

private:
    std::shared_ptr<GdiObject<HFONT>> m_font;
};

using Bitmap = GdiObject<HBITMAP>;
using Region = GdiObject<HRGN>;

inline Region makeRegion(const RECT& rect) {
    return Region(CreateRectRgnIndirect(&rect));
}

// Adds another region to this one, or removes it. The other one stays as it is.
inline void addRegion(const Region& region, const Region& added) {
    CombineRgn(region.handle(), region.handle(), added.handle(), RGN_OR);
}

inline void cutRegion(const Region& region, const Region& cut) {
    CombineRgn(region.handle(), region.handle(), cut.handle(), RGN_DIFF);
}

// Gives a window this shape, in pixels from its top left corner. The system then owns the region, unless the window
// doesn't take it.
inline void shapeWindow(HWND window, Region region) {
    if (SetWindowRgn(window, region.handle(), TRUE))
        region.release();
}

// A cursor from a module's resources, owned by the system.
class Cursor {
public:
    Cursor(HINSTANCE module, int id) : m_cursor(LoadCursorA(module, MAKEINTRESOURCEA(id))) {}

    HCURSOR handle() const { return m_cursor; }

private:
    HCURSOR m_cursor;
};

}
