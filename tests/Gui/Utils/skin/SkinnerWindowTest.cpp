#include "Gui/Utils/skin/SkinProperties.h"
#include "Gui/Utils/skin/Skinner.h"
#include "Gui/Utils/windows/UserMessages.h"
#include "Gui/Utils/windows/WindowProperties.h"
#include "tests/Gui/Utils/TemplateIds.h"
#include "tests/Gui/Utils/skin/SkinnedDialog.h"

#include <gtest/gtest.h>

#include <commctrl.h>

#include <optional>
#include <string>

namespace Gui {
namespace {

using namespace SkinProperties;
using TestSupport::Picture;
using TestSupport::pump;

constexpr const char* PROCEDURES[] = {WINDOW_PROCEDURE,       BUTTON_PROCEDURE, CHECK_BOX_PROCEDURE,
                                      RADIO_BUTTON_PROCEDURE, EDIT_PROCEDURE,   TRACKBAR_PROCEDURE};

// Which procedures of the skin are in front of a window's own.
std::string proceduresOf(HWND window) {
    std::string names;
    for (const char* name : PROCEDURES)
        if (getFlag(window, name))
            names += (names.empty() ? "" : " ") + std::string(name);
    return names;
}

class SkinnerWindowTest : public testing::Test {
protected:
    HWND addButton(DWORD type, const char* text = "B") { return dialog.add("Button", text, type, PLACE); }

    static constexpr RECT PLACE{10, 10, 60, 40};
    SkinnedDialog dialog;
};

TEST_F(SkinnerWindowTest, KnowsItsSkinnerInEveryWindow) {
    const HWND list = dialog.add("ListBox", "", 0, PLACE);
    const HWND trackbar = dialog.add(TRACKBAR_CLASSA, "", 0, {10, 50, 110, 80});
    dialog.skin();
    const HWND template_[] = {GetDlgItem(dialog.handle(), IDC_SKIN_LABEL), GetDlgItem(dialog.handle(), IDC_SKIN_EDIT),
                              GetDlgItem(dialog.handle(), IDC_SKIN_BUTTON)};
    for (const HWND window : {dialog.handle(), list, trackbar, template_[0], template_[1], template_[2]})
        EXPECT_EQ(getObject<Skinner>(window, SKINNER), &dialog.gui().getSkinner());
    EXPECT_EQ(proceduresOf(dialog.handle()), WINDOW_PROCEDURE);
    EXPECT_EQ(proceduresOf(list), "");
    EXPECT_EQ(proceduresOf(template_[0]), "");
    EXPECT_EQ(proceduresOf(template_[1]), EDIT_PROCEDURE);
    EXPECT_EQ(proceduresOf(template_[2]), BUTTON_PROCEDURE);
    EXPECT_EQ(proceduresOf(trackbar), TRACKBAR_PROCEDURE);
}

// The system may replace a type that it no longer supports by another one.
TEST(SkinnerButtonTypeTest, IsDrawnByTheSkinWhateverItIs) {
    for (DWORD type = 0; type < 16; ++type) {
        SkinnedDialog dialog;
        const HWND button = dialog.add("Button", "B", type, {10, 10, 60, 40});
        setNumber(button, CHECKED, 1);
        const auto created = static_cast<DWORD>(GetWindowLongPtrA(button, GWL_STYLE)) & 0xf;
        dialog.skin();
        std::string expected = BUTTON_PROCEDURE;
        if (created == BS_RADIOBUTTON || created == BS_AUTORADIOBUTTON)
            expected = RADIO_BUTTON_PROCEDURE;
        else if (created == BS_CHECKBOX || created == BS_AUTOCHECKBOX || created == BS_3STATE ||
                 created == BS_AUTO3STATE || created == 10 || created == 11)
            expected = CHECK_BOX_PROCEDURE;
        const bool checked = expected == BUTTON_PROCEDURE;  // Others start cleared.
        EXPECT_EQ(proceduresOf(button), expected) << type;
        EXPECT_EQ(getFlag(button, CHECKED), checked) << type;
        EXPECT_EQ(GetWindowLongPtrA(button, GWL_STYLE) & 0xf, BS_OWNERDRAW) << type;
        EXPECT_EQ(Picture(dialog.handle()).at(12, 12), checked ? GdiManager::LIGHT_LIGHT_GREEN : GdiManager::DARK_GREEN)
            << type;
    }
}

TEST(SkinnerButtonFontTest, IsSmallInASmallButton) {
    struct Row {
        const char* text;
        int width;
        int height;
        int font;  // 0: its own.
    };
    constexpr Row ROWS[] = {{"-", 30, 15, 5}, {"+", 30, 15, 5}, {"F", 30, 15, 3},  {"-", 10, 30, 5}, {"F", 10, 30, 3},
                            {"-", 11, 16, 0}, {"F", 11, 16, 0}, {"--", 10, 10, 3}, {"", 10, 10, 3}};
    for (const Row& row : ROWS) {
        SkinnedDialog dialog;
        const HWND button = dialog.add("BUTTON", row.text, BS_PUSHBUTTON, {0, 0, row.width, row.height});
        const auto own = reinterpret_cast<HFONT>(SendMessageA(button, WM_GETFONT, 0, 0));
        dialog.skin();
        const HFONT expected = row.font == 0   ? own
                               : row.font == 5 ? dialog.gdi().getFont5().handle()
                                               : dialog.gdi().getFont3().handle();
        EXPECT_EQ(reinterpret_cast<HFONT>(SendMessageA(button, WM_GETFONT, 0, 0)), expected)
            << row.text << " " << row.width << " by " << row.height;
    }
}

TEST_F(SkinnerWindowTest, GivesEditsAMarginUnlessCentred) {
    const HWND left = dialog.add("Edit", "", ES_LEFT, PLACE);
    const HWND centred = dialog.add("Edit", "", ES_CENTER, PLACE);
    const LRESULT before = SendMessageA(centred, EM_GETMARGINS, 0, 0);
    SendMessageA(left, EM_SETMARGINS, EC_LEFTMARGIN, 9);
    dialog.skin();
    EXPECT_EQ(LOWORD(SendMessageA(left, EM_GETMARGINS, 0, 0)), 2);
    EXPECT_EQ(SendMessageA(centred, EM_GETMARGINS, 0, 0), before);
}

TEST_F(SkinnerWindowTest, FillsItsGround) {
    dialog.skin();
    const Canvas canvas(500, 400);
    EXPECT_EQ(SendMessageA(dialog.handle(), WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.dc()), 0), 1);
    RECT area{};
    GetClientRect(dialog.handle(), &area);
    EXPECT_EQ(canvas.count(GdiManager::BLACK), area.right * area.bottom);
    EXPECT_EQ(canvas.at(area.right, 0), GdiManager::WHITE);
}

TEST_F(SkinnerWindowTest, FramesChildrenWithABorder) {
    for (const bool border : {true, false}) {
        const HWND panel =
            CreateDialogParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(border ? IDD_TEST_BORDER : IDD_TEST_SMALL),
                               dialog.handle(), nullptr, 0);
        SetWindowPos(panel, nullptr, 20, 30, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_SHOWWINDOW);
        dialog.skin();
        dialog.gui().getSkinner().skinWindow(panel);
        EXPECT_EQ(SendMessageA(panel, WM_NCPAINT, 1, 0), 0);
        RECT place = TestSupport::rectInParent(panel);
        const Picture picture(dialog.handle());
        RECT inner = place;
        InflateRect(&inner, -1, -1);
        const int framed = (place.right - place.left) * 2 + (inner.bottom - inner.top) * 2;
        EXPECT_EQ(picture.count(GdiManager::DARK_GREEN, place), border ? framed : 0);
        EXPECT_EQ(picture.count(GdiManager::DARK_GREEN, inner), 0);
        EXPECT_EQ(picture.at(place.left - 1, place.top), GdiManager::BLACK);
        DestroyWindow(panel);
    }
}

TEST_F(SkinnerWindowTest, LeavesOtherFramesToTheSystem) {
    TestSupport::TestWindow top;
    SetWindowLongPtrA(top.handle(), GWL_STYLE, WS_POPUP | WS_BORDER | WS_VISIBLE);
    dialog.gui().getSkinner().skinWindow(top.handle());
    top.forgetMessages();
    SendMessageA(top.handle(), WM_NCPAINT, 1, 0);
    EXPECT_EQ(top.count(WM_NCPAINT), 1u);
}

struct ColourRow {
    bool colour;
    bool background;
    bool gray;
    bool disabled;
    bool text;
    COLORREF textColour;
    COLORREF backgroundColour;
};

constexpr COLORREF OWN = RGB(1, 2, 3);
constexpr COLORREF OWN_BACKGROUND = RGB(4, 5, 6);

void expectColours(SkinnedDialog& dialog, UINT message, HWND control, const ColourRow& row) {
    const WindowsLib::Brush own(OWN);
    const WindowsLib::Brush ownBackground(OWN_BACKGROUND);
    setObject(control, COLOUR, row.colour ? &own : nullptr);
    setObject(control, BACKGROUND_COLOUR, row.background ? &ownBackground : nullptr);
    setNumber(control, GRAY_TEXT, row.gray);
    setNumber(control, DISABLED, row.disabled);
    setNumber(control, TEXT, row.text);
    const Canvas canvas(1, 1);
    const LRESULT brush = SendMessageA(dialog.handle(), message, reinterpret_cast<WPARAM>(canvas.dc()),
                                       reinterpret_cast<LPARAM>(control));
    EXPECT_EQ(GetTextColor(canvas.dc()), row.textColour);
    EXPECT_EQ(GetBkColor(canvas.dc()), row.backgroundColour);
    LOGBRUSH record{};
    GetObjectA(reinterpret_cast<HGDIOBJ>(brush), sizeof record, &record);
    EXPECT_EQ(record.lbColor, row.backgroundColour);
    setObject(control, COLOUR, nullptr);
    setObject(control, BACKGROUND_COLOUR, nullptr);
}

TEST_F(SkinnerWindowTest, ColoursEdits) {
    dialog.skin();
    const HWND edit = GetDlgItem(dialog.handle(), IDC_SKIN_EDIT);
    constexpr ColourRow ROWS[] = {
        // COLOR, BKCOLOR, GRAYTEXT, DISABLED, TEXT
        {false, false, false, false, false, GdiManager::AMBER, GdiManager::BLACK},
        {false, false, false, true, false, GdiManager::AMBER, GdiManager::BLACK},
        {false, false, true, false, false, GdiManager::LIGHT_GREY, GdiManager::BLACK},
        {true, false, false, false, false, OWN, GdiManager::BLACK},
        {true, true, false, false, false, OWN, OWN_BACKGROUND},
        {false, true, false, false, false, GdiManager::AMBER, GdiManager::BLACK},
        {true, true, true, false, false, GdiManager::LIGHT_GREY, OWN_BACKGROUND},
        {true, false, true, false, true, GdiManager::LIGHT_GREY, GdiManager::BLACK},
    };
    for (const ColourRow& row : ROWS)
        expectColours(dialog, WM_CTLCOLOREDIT, edit, row);
}

TEST_F(SkinnerWindowTest, ColoursLabels) {
    dialog.skin();
    const HWND label = GetDlgItem(dialog.handle(), IDC_SKIN_LABEL);
    constexpr ColourRow ROWS[] = {
        {false, false, false, false, false, GdiManager::GREEN, GdiManager::BLACK},
        {false, false, false, false, true, GdiManager::AMBER, GdiManager::BLACK},
        {false, false, false, true, false, GdiManager::LIGHT_GREY, GdiManager::BLACK},
        {false, false, true, false, false, GdiManager::LIGHT_GREY, GdiManager::BLACK},
        {false, false, true, false, true, GdiManager::LIGHT_GREY, GdiManager::BLACK},
        {false, false, false, true, true, GdiManager::LIGHT_GREY, GdiManager::BLACK},
        {true, true, false, false, false, GdiManager::GREEN, GdiManager::BLACK},
    };
    for (const ColourRow& row : ROWS)
        expectColours(dialog, WM_CTLCOLORSTATIC, label, row);
}

TEST_F(SkinnerWindowTest, ShowsLabelsAndEditsInTheirColours) {
    dialog.skin();
    const HWND edit = GetDlgItem(dialog.handle(), IDC_SKIN_EDIT);
    SetWindowTextA(edit, "Text");
    const Picture picture(dialog.handle());
    picture.save("skin-dialog");
    EXPECT_GT(picture.count(GdiManager::GREEN, TestSupport::rectInParent(GetDlgItem(dialog.handle(), IDC_SKIN_LABEL))),
              5);
    EXPECT_GT(picture.count(GdiManager::AMBER, TestSupport::rectInParent(edit)), 5);
    EXPECT_EQ(picture.at(1, 1), GdiManager::BLACK);
}

TEST_F(SkinnerWindowTest, SkinsControlsThatComeLater) {
    dialog.skin();
    EXPECT_EQ(proceduresOf(addButton(BS_PUSHBUTTON)), BUTTON_PROCEDURE);
    EXPECT_EQ(proceduresOf(dialog.add("Edit", "", 0, PLACE)), EDIT_PROCEDURE);
}

TEST_F(SkinnerWindowTest, LeavesWindowsBelowItsLaterChildrenAlone) {
    dialog.skin();
    const HWND child = dialog.add("Static", "", 0, PLACE);
    const HWND below =
        CreateWindowExA(0, "Edit", "", WS_CHILD | WS_VISIBLE, 0, 0, 10, 10, child, nullptr, nullptr, nullptr);
    EXPECT_TRUE(getFlag(child, SKINNER));
    EXPECT_FALSE(getFlag(below, SKINNER));
    EXPECT_EQ(proceduresOf(below), "");
}

TEST_F(SkinnerWindowTest, SkinsOnlyOnce) {
    const HWND check = addButton(BS_AUTOCHECKBOX);
    dialog.skin();
    SendMessageA(check, BM_SETCHECK, BST_CHECKED, 0);
    dialog.skin();
    EXPECT_EQ(SendMessageA(check, BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_EQ(proceduresOf(check), CHECK_BOX_PROCEDURE);
    EXPECT_EQ(Picture(dialog.handle()).at(12, 12), GdiManager::LIGHT_LIGHT_GREEN);
}

TEST_F(SkinnerWindowTest, GivesEveryWindowItsProcedureBackAtTheEnd) {
    const HWND windows[] = {
        dialog.handle(),           addButton(BS_PUSHBUTTON),         addButton(BS_CHECKBOX),
        addButton(BS_RADIOBUTTON), dialog.add("Edit", "", 0, PLACE), dialog.add(TRACKBAR_CLASSA, "", 0, PLACE)};
    std::vector<LONG_PTR> own;
    for (const HWND window : windows)
        own.push_back(GetWindowLongPtrA(window, GWLP_WNDPROC));
    dialog.skin();
    for (std::size_t i = std::size(windows); i-- > 0;) {
        EXPECT_NE(GetWindowLongPtrA(windows[i], GWLP_WNDPROC), own[i]) << i;
        EXPECT_NE(proceduresOf(windows[i]), "") << i;
        SendMessageA(windows[i], WM_DESTROY, 0, 0);
        EXPECT_EQ(GetWindowLongPtrA(windows[i], GWLP_WNDPROC), own[i]) << i;
        EXPECT_EQ(proceduresOf(windows[i]), "") << i;
    }
}

TEST_F(SkinnerWindowTest, DoesNothingOfItsOwnWithoutASkinner) {
    const HWND check = addButton(BS_AUTOCHECKBOX);
    dialog.skin();
    RemovePropA(check, SKINNER);
    setNumber(check, CHECKED, 1);
    EXPECT_EQ(SendMessageA(check, BM_GETCHECK, 0, 0), 0);
    dialog.gui().helpWindows.clear();
    SendMessageA(check, WM_NCHITTEST, 0, 0);
    EXPECT_TRUE(dialog.gui().helpWindows.empty());
}

// What a button looks like.
struct ButtonRow {
    const char* name;
    bool disabled;
    bool pressed;
    const char* property;
    COLORREF fill;
    COLORREF text;
};

TEST_F(SkinnerWindowTest, DrawsButtonsByTheirState) {
    const WindowsLib::Brush own(OWN);
    const ButtonRow rows[] = {
        {"plain", false, false, nullptr, GdiManager::DARK_GREEN, GdiManager::BLACK},
        {"pressed", false, true, nullptr, GdiManager::LIGHT_LIGHT_GREEN, GdiManager::BLACK},
        {"checked", false, false, CHECKED, GdiManager::LIGHT_LIGHT_GREEN, GdiManager::BLACK},
        {"disabled", true, false, nullptr, GdiManager::DARK_GREY, GdiManager::BLACK},
        {"disabled and checked", true, false, CHECKED, GdiManager::DARK_GREY, GdiManager::BLACK},
        {"gray", false, false, GRAY_TEXT, GdiManager::DARK_GREY, GdiManager::BLACK},
        {"gray and pressed", false, true, GRAY_TEXT, GdiManager::DARK_GREY, GdiManager::BLACK},
        {"selected", false, false, SELECTED, GdiManager::DARK_GREEN, GdiManager::LIGHT_LIGHT_GREEN},
        {"coloured", false, false, COLOUR, OWN, GdiManager::BLACK},
        {"coloured and pressed", false, true, COLOUR, OWN, GdiManager::BLACK},
        {"coloured and disabled", true, false, COLOUR, OWN, GdiManager::BLACK},
    };
    for (const ButtonRow& row : rows) {
        const HWND button = addButton(BS_PUSHBUTTON, "HHH");
        dialog.skin();
        if (row.property == COLOUR)
            setObject(button, COLOUR, &own);
        else if (row.property)
            setNumber(button, row.property, 1);
        EnableWindow(button, !row.disabled);
        SendMessageA(button, BM_SETSTATE, row.pressed, 0);
        const Picture picture(dialog.handle());
        const int text = picture.count(row.text, PLACE);
        const int fill = picture.count(row.fill, PLACE);
        EXPECT_GT(text, 20) << row.name;
        EXPECT_EQ(text + fill, 50 * 30) << row.name;
        for (const auto& [x, y] : {std::pair{10, 10}, {59, 10}, {10, 39}, {59, 39}})
            EXPECT_EQ(picture.at(x, y), row.fill) << row.name;
        DestroyWindow(button);
    }
}

LRESULT draw(SkinnedDialog& dialog, HWND button, const Canvas& canvas, const RECT& place, UINT action = ODA_DRAWENTIRE,
             UINT type = ODT_BUTTON) {
    SelectObject(canvas.dc(), reinterpret_cast<HFONT>(SendMessageA(button, WM_GETFONT, 0, 0)));
    DRAWITEMSTRUCT item{};
    item.CtlType = type;
    item.itemAction = action;
    item.hwndItem = button;
    item.hDC = canvas.dc();
    item.rcItem = place;
    return SendMessageA(dialog.handle(), WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&item));
}

TEST_F(SkinnerWindowTest, DrawsNoFocusAndNothingUnknown) {
    dialog.skin();
    const HWND button = GetDlgItem(dialog.handle(), IDC_SKIN_BUTTON);
    const Canvas canvas(20, 20);
    const RECT place{0, 0, 20, 20};
    EXPECT_EQ(draw(dialog, button, canvas, place, ODA_FOCUS), 0);
    EXPECT_EQ(draw(dialog, button, canvas, place, ODA_DRAWENTIRE, ODT_LISTBOX), 0);
    EXPECT_EQ(canvas.count(GdiManager::WHITE), 400);
    EXPECT_EQ(draw(dialog, button, canvas, place, ODA_SELECT), 1);
    EXPECT_EQ(canvas.at(0, 0), GdiManager::DARK_GREEN);
}

TEST_F(SkinnerWindowTest, RaisesTheSignsOfSmallButtons) {
    const HWND minus = dialog.add("Button", "-", BS_PUSHBUTTON, {0, 0, 10, 14});
    const HWND plus = dialog.add("Button", "+", BS_PUSHBUTTON, {0, 0, 10, 14});
    const HWND letter = dialog.add("Button", "F", BS_PUSHBUTTON, {0, 0, 10, 14});
    dialog.skin();
    const auto firstRow = [this](HWND button, int height) {
        const Canvas canvas(10, 20);
        EXPECT_EQ(draw(dialog, button, canvas, {0, 0, 10, height}), 1);
        EXPECT_EQ(canvas.count(GdiManager::WHITE), 10 * (20 - height));  // The button itself stays.
        return canvas.firstRowWith(GdiManager::BLACK);
    };
    // Two pixels less of height move a text up by one, and a sign by one more.
    EXPECT_EQ(firstRow(minus, 14), firstRow(minus, 16) - 2);
    EXPECT_EQ(firstRow(plus, 14), firstRow(plus, 16) - 2);
    EXPECT_EQ(firstRow(letter, 14), firstRow(letter, 16) - 1);
}

TEST_F(SkinnerWindowTest, DrawsNoFocusRectangle) {
    const HWND button = addButton(BS_PUSHBUTTON, "");
    dialog.skin();
    SetFocus(button);
    pump();
    EXPECT_EQ(Picture(dialog.handle()).count(GdiManager::DARK_GREEN, PLACE), 50 * 30);
}

// As a grid gets its fields one by one.
TEST(SkinnedControl, HasItsLaterControlsSkinned) {
    SkinnedDialog dialog;
    const HWND control = dialog.add("Static", "", 0, {10, 10, 150, 100});
    dialog.skin();
    const auto addEdit = [control] {
        return CreateWindowExA(0, "Edit", "5", WS_CHILD | WS_VISIBLE | WS_BORDER, 2, 2, 40, 18, control, nullptr,
                               nullptr, nullptr);
    };
    const HWND tooEarly = addEdit();
    EXPECT_FALSE(getFlag(tooEarly, EDIT_PROCEDURE));
    DestroyWindow(tooEarly);
    dialog.gui().getSkinner().skinWindow(control);
    const HWND edit = addEdit();
    EXPECT_TRUE(getFlag(edit, EDIT_PROCEDURE));
    Skinner::setMin(edit, 0);
    Skinner::setMax(edit, 127);
    SendMessageA(edit, UM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0);
    EXPECT_EQ(TestSupport::textOf(edit), "6");
}

}
}
