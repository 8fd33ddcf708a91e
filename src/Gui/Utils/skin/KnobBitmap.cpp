#include "Gui/Utils/skin/KnobBitmap.h"

#include <objidl.h>

#include <algorithm>

// The header below expects these in its namespace unless they are macros.
namespace Gdiplus {
using std::max;  // NOLINT(misc-unused-using-decls)
using std::min;  // NOLINT(misc-unused-using-decls)
}

#include <gdiplus.h>

namespace Gui {

namespace {

using namespace Gdiplus;

// The reverse of a COLORREF's byte order.
constexpr ARGB opaque(COLORREF colour) {
    return 0xff000000u | static_cast<ARGB>(GetRValue(colour)) << 16 | static_cast<ARGB>(GetGValue(colour)) << 8 |
           GetBValue(colour);
}

// Loads the library for the time one picture takes.
class Session {
public:
    Session() {
        const GdiplusStartupInput input;
        if (GdiplusStartup(&m_token, &input, nullptr) != Ok)
            m_token = 0;
    }
    ~Session() {
        if (m_token != 0)
            GdiplusShutdown(m_token);
    }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    explicit operator bool() const { return m_token != 0; }

private:
    ULONG_PTR m_token = 0;
};

// A picture of the library's, with a context to draw on it. Null on failure.
struct Picture {
    Picture(int width, int height) {
        if (DllExports::GdipCreateBitmapFromScan0(width, height, 0, PixelFormat32bppARGB, nullptr, &bitmap) == Ok)
            DllExports::GdipGetImageGraphicsContext(bitmap, &graphics);
    }
    ~Picture() {
        if (graphics)
            DllExports::GdipDeleteGraphics(graphics);
        if (bitmap)
            DllExports::GdipDisposeImage(bitmap);
    }
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    GpBitmap* bitmap = nullptr;
    GpGraphics* graphics = nullptr;
};

void fillDisc(GpGraphics* graphics, COLORREF colour, int diameter) {
    GpSolidFill* brush = nullptr;
    if (DllExports::GdipCreateSolidFill(opaque(colour), &brush) != Ok)
        return;
    DllExports::GdipFillEllipseI(graphics, brush, 0, 0, diameter, diameter);
    DllExports::GdipDeleteBrush(brush);
}

}

HBITMAP createKnobBitmap(COLORREF foreground, COLORREF background, bool smooth, int diameter) {
    const Session session;
    if (!session)
        return nullptr;
    const Picture picture(diameter + 1, diameter + 1);
    if (!picture.graphics)
        return nullptr;

    DllExports::GdipGraphicsClear(picture.graphics, opaque(background));
    DllExports::GdipSetSmoothingMode(picture.graphics, SmoothingModeAntiAlias);
    if (smooth)
        DllExports::GdipSetPixelOffsetMode(picture.graphics, PixelOffsetModeHalf);
    fillDisc(picture.graphics, foreground, diameter);
    DllExports::GdipFlush(picture.graphics, FlushIntentionFlush);

    HBITMAP knob = nullptr;
    DllExports::GdipCreateHBITMAPFromBitmap(picture.bitmap, &knob, opaque(RGB(0, 0, 0)));
    return knob;
}

}
