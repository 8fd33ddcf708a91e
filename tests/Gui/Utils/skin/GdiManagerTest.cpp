#include "Gui/Utils/skin/GdiManager.h"

#include "Gui/ResourceIds.h"
#include "Platform/Shell.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <memory>
#include <thread>
#include <utility>
#include <vector>

namespace Gui {
namespace {

// Red in the low byte.
constexpr COLORREF rgb(unsigned red, unsigned green, unsigned blue) {
    return red | green << 8 | blue << 16;
}

struct Colour {
    COLORREF constant;
    COLORREF value;
};

constexpr Colour COLOURS[] = {
    {GdiManager::BLACK, rgb(0, 0, 0)},
    {GdiManager::WHITE, rgb(255, 255, 255)},
    {GdiManager::LIGHT_RED, rgb(255, 5, 5)},
    {GdiManager::DARK_RED, rgb(128, 0, 0)},
    {GdiManager::AMBER, rgb(188, 188, 60)},
    {GdiManager::LIGHT_LIGHT_GREEN, rgb(0, 255, 0)},
    {GdiManager::LIGHT_GREEN, rgb(0, 235, 0)},
    {GdiManager::GREEN, rgb(0, 210, 0)},
    {GdiManager::DARK_GREEN, rgb(0, 160, 0)},
    {GdiManager::DARK_DARK_GREEN, rgb(0, 100, 0)},
    {GdiManager::DARK_DARK_DARK_GREEN, rgb(0, 50, 0)},
    {GdiManager::LIGHT_GREY, rgb(192, 192, 192)},
    {GdiManager::DARK_GREY, rgb(100, 100, 100)},
    {GdiManager::DARK_DARK_GREY, rgb(70, 70, 70)},
};

using BrushGetter = const WindowsLib::Brush& (GdiManager::*)() const;

struct BrushRow {
    int position;
    BrushGetter get;
    COLORREF value;
};

const BrushRow BRUSHES[] = {
    {1, &GdiManager::getBackroundBrush, GdiManager::BLACK},
    {2, &GdiManager::getPanelBorderBrush, GdiManager::DARK_GREEN},
    {3, &GdiManager::getSelectedButtonBrush, GdiManager::LIGHT_LIGHT_GREEN},
    {4, &GdiManager::getSelectedButton1Brush, GdiManager::LIGHT_GREEN},
    {5, &GdiManager::getSelectedButton2Brush, GdiManager::GREEN},
    {6, &GdiManager::getUnselectedButtonBrush, GdiManager::DARK_GREEN},
    {7, &GdiManager::getUnusedButtonBrush, GdiManager::DARK_DARK_GREEN},
    {8, &GdiManager::getUnusedSelectedButtonBrush, GdiManager::DARK_RED},
    {9, &GdiManager::getDisabledButtonBrush, GdiManager::DARK_GREY},
    {10, &GdiManager::getControlBorderBrush, GdiManager::DARK_GREEN},
    {11, &GdiManager::getControlBorderDisabledBrush, GdiManager::DARK_GREY},
    {12, &GdiManager::getFrameBrush, GdiManager::LIGHT_RED},
    {13, &GdiManager::getTextBrush, GdiManager::AMBER},
    {14, &GdiManager::getLabelDisabledBrush, GdiManager::LIGHT_GREY},
    {16, &GdiManager::getSelectedCellBrush, GdiManager::DARK_DARK_GREY},
    {17, &GdiManager::getLabelBrush, GdiManager::GREEN},
};

GdiManager makeNumbered() {
    return {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17};
}

COLORREF colourOf(HBRUSH brush) {
    LOGBRUSH record{};
    EXPECT_EQ(GetObjectA(brush, sizeof record, &record), static_cast<int>(sizeof record));
    EXPECT_EQ(record.lbStyle, static_cast<UINT>(BS_SOLID));
    return record.lbColor;
}

TEST(GdiManager, NamesItsColours) {
    for (const Colour& row : COLOURS)
        EXPECT_EQ(row.constant, row.value);
}

TEST(GdiManager, HasABrushForEachColourButOne) {
    const GdiManager numbered = makeNumbered();
    const GdiManager desk = GdiManager::create();
    for (const BrushRow& row : BRUSHES) {
        EXPECT_EQ((numbered.*row.get)().colour(), static_cast<COLORREF>(row.position));
        EXPECT_EQ(colourOf((numbered.*row.get)().handle()), static_cast<COLORREF>(row.position));
        EXPECT_EQ((desk.*row.get)().colour(), row.value) << row.position;
        EXPECT_EQ(colourOf((desk.*row.get)().handle()), row.value) << row.position;
    }
}

void expectPen(const WindowsLib::Pen& pen, LONG width, COLORREF colour) {
    LOGPEN record{};
    ASSERT_EQ(GetObjectA(pen.handle(), sizeof record, &record), static_cast<int>(sizeof record));
    EXPECT_EQ(record.lopnStyle, static_cast<UINT>(PS_SOLID));
    EXPECT_EQ(record.lopnWidth.x, width);
    EXPECT_EQ(record.lopnColor, colour);
}

TEST(GdiManager, HasThreePens) {
    const GdiManager gdi = makeNumbered();
    expectPen(gdi.getGreenPen(), 2, 15);
    expectPen(gdi.getGreenPen2(), 1, 7);
    expectPen(gdi.getBlackPen(), 2, 1);
    const GdiManager desk = GdiManager::create();
    expectPen(desk.getGreenPen(), 2, GdiManager::DARK_DARK_DARK_GREEN);
    expectPen(desk.getGreenPen2(), 1, GdiManager::DARK_DARK_GREEN);
    expectPen(desk.getBlackPen(), 2, GdiManager::BLACK);
}

struct FontRow {
    const WindowsLib::Font& (GdiManager::*get)() const;
    const char* face;
    LONG height;
    LONG weight;
};

const FontRow FONTS[] = {
    {&GdiManager::getFont1, "Small Fonts", -7, 400},       {&GdiManager::getFont2, "Small Fonts", -8, 700},
    {&GdiManager::getFont3, "Small Fonts", -8, 400},       {&GdiManager::getFont4, "Microsoft Sans Serif", 14, 400},
    {&GdiManager::getFont5, "MS Sans Serif", -8, 700},     {&GdiManager::getFont6, "Microsoft Sans Serif", -11, 700},
    {&GdiManager::getFont7, "Tahoma", -11, 700},           {&GdiManager::getFont8, "MS Sans Serif", -14, 400},
    {&GdiManager::getFont9, "Tahoma", -11, 400},           {&GdiManager::getBigFont, "System", -8, 700},
    {&GdiManager::getSmallFont, "Arial", 12, 400},         {&GdiManager::getLargeFont, "Arial", -72, 700},
    {&GdiManager::getWebdingsFont, "Webdings", 24, 400},   {&GdiManager::getWebdingsFont2, "Webdings", -30, 400},
    {&GdiManager::getWebdingsFont3, "Webdings", -14, 400}, {&GdiManager::getSmallWebdingsFont, "Webdings", 18, 400},
};

TEST(GdiManager, HasItsFonts) {
    const GdiManager gdi = GdiManager::create();
    for (const FontRow& row : FONTS) {
        LOGFONTA record{};
        ASSERT_NE(GetObjectA((gdi.*row.get)().handle(), sizeof record, &record), 0) << row.face;
        EXPECT_STREQ(record.lfFaceName, row.face);
        EXPECT_EQ(record.lfHeight, row.height) << row.face;
        EXPECT_EQ(record.lfWeight, row.weight) << row.face;
        EXPECT_EQ(record.lfCharSet, DEFAULT_CHARSET);
        EXPECT_EQ(record.lfWidth, 0);
        EXPECT_EQ(record.lfItalic, 0);
    }
}

TEST(GdiManager, SharesFontsAndKnobsWithItsCopies) {
    GdiManager gdi = makeNumbered();
    WindowsLib::Bitmap& knob = gdi.getKnob(1, 2, true, 10);
    GdiManager copy(gdi);
    EXPECT_EQ(copy.getFont1().handle(), gdi.getFont1().handle());
    EXPECT_EQ(&copy.getKnob(1, 2, true, 10), &knob);
    EXPECT_NE(copy.getTextBrush().handle(), gdi.getTextBrush().handle());
    GdiManager assigned = GdiManager::create();
    assigned = gdi;
    for (const BrushRow& row : BRUSHES)
        EXPECT_EQ(colourOf((assigned.*row.get)().handle()), static_cast<COLORREF>(row.position));
    EXPECT_EQ(assigned.getFont9().handle(), gdi.getFont9().handle());
}

// The picture of a bitmap, row by row from the top.
struct Pixels {
    explicit Pixels(HBITMAP bitmap) {
        BITMAP record{};
        GetObjectA(bitmap, sizeof record, &record);
        width = record.bmWidth;
        height = record.bmHeight;
        BITMAPINFO info{};
        info.bmiHeader = {sizeof(BITMAPINFOHEADER), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        values.resize(static_cast<std::size_t>(width * height));
        const HDC dc = CreateCompatibleDC(nullptr);
        GetDIBits(dc, bitmap, 0, static_cast<UINT>(height), values.data(), &info, DIB_RGB_COLORS);
        DeleteDC(dc);
    }

    COLORREF at(int x, int y) const {
        const DWORD value = values[static_cast<std::size_t>(y * width + x)];
        return RGB(value >> 16 & 0xff, value >> 8 & 0xff, value & 0xff);
    }

    int width = 0;
    int height = 0;
    std::vector<DWORD> values;
};

constexpr COLORREF FOREGROUND = RGB(200, 100, 10);
constexpr COLORREF BACKGROUND = RGB(10, 20, 90);

TEST(GdiManager, DrawsAKnobAsADiscOnASquare) {
    for (const bool smooth : {false, true}) {
        const WindowsLib::Bitmap knob(GdiManager::createKnob(FOREGROUND, BACKGROUND, smooth, 10));
        const Pixels pixels(knob.handle());
        ASSERT_EQ(pixels.width, 11);
        ASSERT_EQ(pixels.height, 11);
        EXPECT_EQ(pixels.at(5, 5), FOREGROUND);
        for (const auto& [x, y] : {std::pair{0, 0}, {10, 0}, {0, 10}, {10, 10}})
            EXPECT_EQ(pixels.at(x, y), BACKGROUND) << x << " " << y;
    }
}

TEST(GdiManager, LeavesTheLastRowAndColumnOfASmoothKnobToTheBackground) {
    const WindowsLib::Bitmap knob(GdiManager::createKnob(FOREGROUND, BACKGROUND, true, 10));
    const Pixels pixels(knob.handle());
    for (int i = 0; i < 11; ++i) {
        EXPECT_EQ(pixels.at(i, 10), BACKGROUND) << i;
        EXPECT_EQ(pixels.at(10, i), BACKGROUND) << i;
    }
}

TEST(GdiManager, DrawsAKnobRound) {
    const WindowsLib::Bitmap knob(GdiManager::createKnob(FOREGROUND, BACKGROUND, true, 40));
    const Pixels pixels(knob.handle());
    const auto isDisc = [](COLORREF colour) { return GetRValue(colour) > (200 + 10) / 2; };
    int area = 0;
    for (int y = 0; y <= 40; ++y)
        for (int x = 0; x <= 40; ++x) {
            area += isDisc(pixels.at(x, y)) ? 1 : 0;
            const double distance = std::hypot(x - 19.5, y - 19.5);
            if (distance < 18.5 || distance > 21.5) {
                EXPECT_EQ(isDisc(pixels.at(x, y)), distance < 20) << x << " " << y;
            }
        }
    EXPECT_NEAR(area, 1257, 60);
}

TEST(GdiManager, KeepsAKnobForEachColourSizeAndSmoothness) {
    GdiManager gdi = GdiManager::create();
    WindowsLib::Bitmap& knob = gdi.getKnob(FOREGROUND, BACKGROUND, true, 21);
    ASSERT_NE(knob.handle(), nullptr);
    const HBITMAP handle = knob.handle();
    WindowsLib::Bitmap* const others[] = {
        &gdi.getKnob(FOREGROUND, BACKGROUND, false, 21), &gdi.getKnob(FOREGROUND, BACKGROUND, true, 20),
        &gdi.getKnob(BACKGROUND, BACKGROUND, true, 21), &gdi.getKnob(FOREGROUND, FOREGROUND, true, 21),
        &gdi.getKnob(BACKGROUND, FOREGROUND, true, 21)};
    for (std::size_t i = 0; i < std::size(others); ++i) {
        EXPECT_NE(others[i]->handle(), nullptr);
        EXPECT_NE(others[i], &knob);
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_NE(others[i], others[j]);
    }
    EXPECT_EQ(&gdi.getKnob(FOREGROUND, BACKGROUND, true, 21), &knob);
    EXPECT_EQ(knob.handle(), handle);
    EXPECT_NE(others[0]->handle(), handle);
}

TEST(GdiManager, HasARedCursor) {
    const GdiManager gdi = GdiManager::create();
    ASSERT_NE(gdi.getRedCursor().handle(), nullptr);
    ICONINFO info{};
    ASSERT_TRUE(GetIconInfo(gdi.getRedCursor().handle(), &info));
    const WindowsLib::Bitmap mask(info.hbmMask);
    const WindowsLib::Bitmap colours(info.hbmColor);
    EXPECT_FALSE(info.fIcon);
    EXPECT_EQ(info.xHotspot, 0u);
    EXPECT_EQ(info.yHotspot, 0u);
    const Pixels pixels(colours.handle());
    EXPECT_EQ(pixels.width, 32);
    EXPECT_EQ(pixels.height, 32);
    EXPECT_EQ(pixels.at(5, 12), RGB(255, 0, 0));
    EXPECT_EQ(Pixels(mask.handle()).at(31, 31), RGB(255, 255, 255));  // Transparent.
}

// Its resource as it is stored: a group of one picture, with a header of the picture's own.
TEST(GdiManager, KeepsTheRedCursorInSixteenColours) {
    const auto module = static_cast<HINSTANCE>(Platform::getModuleInstance());
    const HRSRC group = FindResourceA(module, MAKEINTRESOURCEA(IDC_RED_CURSOR), MAKEINTRESOURCEA(12));
    ASSERT_NE(group, nullptr);
    const auto* words = static_cast<const WORD*>(LockResource(LoadResource(module, group)));
    EXPECT_EQ(words[2], 1);
    const WORD id = words[3 + 6];
    const HRSRC picture = FindResourceA(module, MAKEINTRESOURCEA(id), MAKEINTRESOURCEA(1));
    ASSERT_NE(picture, nullptr);
    const auto* bytes = static_cast<const std::uint8_t*>(LockResource(LoadResource(module, picture)));
    BITMAPINFOHEADER header{};
    std::memcpy(&header, bytes + 4, sizeof header);
    EXPECT_EQ(header.biWidth, 32);
    EXPECT_EQ(header.biHeight, 64);  // With its mask.
    EXPECT_EQ(header.biBitCount, 4);
}

TEST(GdiManager, CanBeMadeOnAnotherThread) {
    std::unique_ptr<GdiManager> gdi;
    std::thread([&gdi] { gdi = std::make_unique<GdiManager>(GdiManager::create()); }).join();
    EXPECT_EQ(colourOf(gdi->getTextBrush().handle()), GdiManager::AMBER);
    EXPECT_NE(gdi->getKnob(FOREGROUND, BACKGROUND, true, 21).handle(), nullptr);
}

}
}
