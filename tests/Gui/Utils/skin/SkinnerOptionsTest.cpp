#include "Gui/Utils/skin/SkinProperties.h"
#include "Gui/Utils/widgets/TimeIntervalCtl.h"
#include "Gui/Utils/windows/WindowProperties.h"
#include "tests/Gui/Utils/TemplateIds.h"
#include "tests/Gui/Utils/skin/SkinnedDialog.h"

#include <gtest/gtest.h>

namespace Gui {
namespace {

using namespace SkinProperties;
using TestSupport::pump;
using TestSupport::textOf;

class SkinnerOptionsTest : public testing::Test {
protected:
    SkinnerOptionsTest() { dialog.skin(); }

    static bool needsPaint(HWND window) {
        RECT changed{};
        return GetUpdateRect(window, &changed, FALSE) != FALSE;
    }

    void validateAll() const {
        for (const HWND window : {dialog.handle(), edit, label, button})
            ValidateRect(window, nullptr);
    }

    SkinnedDialog dialog;
    HWND edit = GetDlgItem(dialog.handle(), IDC_SKIN_EDIT);
    HWND label = GetDlgItem(dialog.handle(), IDC_SKIN_LABEL);
    HWND button = GetDlgItem(dialog.handle(), IDC_SKIN_BUTTON);
};

TEST_F(SkinnerOptionsTest, SetNoWheel) {
    Skinner::setNoWheel(dialog.handle(), IDC_SKIN_EDIT);
    EXPECT_EQ(getNumber(edit, NO_WHEEL), 1);
    Skinner::setNoWheel(button);
    EXPECT_EQ(getNumber(button, NO_WHEEL), 1);
}

TEST_F(SkinnerOptionsTest, SetLimits) {
    Skinner::setMinMax(dialog.handle(), IDC_SKIN_EDIT, -12, 200);
    EXPECT_EQ(getNumber(edit, MIN), -12);
    EXPECT_EQ(getNumber(edit, MAX), 200);
    Skinner::setMin(dialog.handle(), IDC_SKIN_EDIT, 3);
    Skinner::setMax(dialog.handle(), IDC_SKIN_EDIT, 4);
    EXPECT_EQ(getNumber(edit, MIN), 3);
    EXPECT_EQ(getNumber(edit, MAX), 4);
    Skinner::setMin(edit, 5);
    Skinner::setMax(edit, 6);
    EXPECT_EQ(getNumber(edit, MIN), 5);
    EXPECT_EQ(getNumber(edit, MAX), 6);
    EXPECT_FALSE(getFlag(edit, MIN_ZERO) || getFlag(edit, MAX_ZERO));
}

TEST_F(SkinnerOptionsTest, KeepALimitOfZeroUnderANameOfItsOwn) {
    Skinner::setMinMax(dialog.handle(), IDC_SKIN_EDIT, 0, 0);
    EXPECT_EQ(getNumber(edit, MIN_ZERO), 1);
    EXPECT_EQ(getNumber(edit, MAX_ZERO), 1);
    EXPECT_EQ(getNumber(edit, MIN), 0);
    EXPECT_EQ(getNumber(edit, MAX), 0);
    Skinner::setMinMax(dialog.handle(), IDC_SKIN_EDIT, 7, 9);
    EXPECT_FALSE(getFlag(edit, MIN_ZERO) || getFlag(edit, MAX_ZERO));
}

TEST_F(SkinnerOptionsTest, SetLooks) {
    Skinner::showZeroAsBlank(dialog.handle(), IDC_SKIN_EDIT);
    EXPECT_EQ(getNumber(edit, SHOW_ZERO_AS_BLANK), 1);
    Skinner::setText(dialog.handle(), IDC_SKIN_LABEL);
    EXPECT_EQ(getNumber(label, TEXT), 1);
    validateAll();
    Skinner::setGrayText(dialog.handle(), IDC_SKIN_BUTTON, true, false);
    EXPECT_EQ(getNumber(button, GRAY_TEXT), 1);
    EXPECT_FALSE(needsPaint(button));
    Skinner::setGrayText(dialog.handle(), IDC_SKIN_BUTTON, false, true);
    EXPECT_EQ(getNumber(button, GRAY_TEXT), 0);
    EXPECT_TRUE(needsPaint(button));
    validateAll();
    Skinner::setSelected(dialog.handle(), IDC_SKIN_BUTTON, true);
    EXPECT_EQ(getNumber(button, SELECTED), 1);
    EXPECT_TRUE(needsPaint(button));
    Skinner::setSelected(dialog.handle(), IDC_SKIN_BUTTON, false);
    EXPECT_EQ(getNumber(button, SELECTED), 0);
}

TEST_F(SkinnerOptionsTest, OfAMissingControlChangeNothing) {
    TestSupport::pump();
    ValidateRect(dialog.handle(), nullptr);
    Skinner::setSelected(dialog.handle(), 4711, true);
    Skinner::setGrayText(dialog.handle(), 4711, true, true);
    Skinner::enableControl(dialog.handle(), 4711, 4712, false);
    EXPECT_FALSE(GetUpdateRect(dialog.handle(), nullptr, FALSE));
}

TEST_F(SkinnerOptionsTest, ShowAnInvalidValue) {
    SetWindowTextA(edit, "5");
    validateAll();
    Skinner::indicateInvalidValue(dialog.handle(), IDC_SKIN_EDIT, true);
    EXPECT_EQ(textOf(edit), "?");
    EXPECT_TRUE(getFlag(edit, GRAY_TEXT));
    EXPECT_TRUE(getFlag(edit, SET_BY_PROGRAM));
    EXPECT_TRUE(needsPaint(edit));
    RemovePropA(edit, SET_BY_PROGRAM);
    validateAll();
    Skinner::indicateInvalidValue(dialog.handle(), IDC_SKIN_EDIT, false);
    EXPECT_EQ(textOf(edit), "?");
    EXPECT_FALSE(getFlag(edit, GRAY_TEXT));
    EXPECT_FALSE(getFlag(edit, SET_BY_PROGRAM));
    EXPECT_TRUE(needsPaint(edit));
}

TEST_F(SkinnerOptionsTest, LeaveTheMarkOfTheProgramToAComboBox) {
    int combo = 0;
    setObject(edit, COMBO_BOX, &combo);
    Skinner::indicateInvalidValue(dialog.handle(), IDC_SKIN_EDIT, true);
    EXPECT_EQ(textOf(edit), "?");
    EXPECT_FALSE(getFlag(edit, SET_BY_PROGRAM));
    RemovePropA(edit, COMBO_BOX);
}

TEST_F(SkinnerOptionsTest, EnableAnEditWithItsLabel) {
    const auto corner = [this] {
        const RECT place = TestSupport::rectInParent(edit);
        const HDC dc = GetDC(dialog.handle());
        const COLORREF pixel = GetPixel(dc, place.left, place.top);
        ReleaseDC(dialog.handle(), dc);
        return pixel;
    };
    UpdateWindow(dialog.handle());
    pump();
    validateAll();
    Skinner::enableControl(dialog.handle(), IDC_SKIN_EDIT, IDC_SKIN_LABEL, false);
    EXPECT_FALSE(IsWindowEnabled(edit));
    EXPECT_TRUE(getFlag(label, DISABLED));
    EXPECT_TRUE(needsPaint(label));
    EXPECT_EQ(corner(), GdiManager::DARK_GREY);
    Skinner::enableControl(dialog.handle(), IDC_SKIN_EDIT, IDC_SKIN_LABEL, true);
    EXPECT_TRUE(IsWindowEnabled(edit));
    EXPECT_FALSE(getFlag(label, DISABLED));
    EXPECT_EQ(corner(), GdiManager::DARK_GREEN);
}

TEST_F(SkinnerOptionsTest, EnableATimeIntervalWithItsLabel) {
    TimeIntervalCtl control(dialog.gui(), nullptr);
    control.create(dialog.add("Static", "", 0, {10, 10, 60, 30}), TimeIntervalCtl::standardColours(dialog.gui()));
    pump();
    validateAll();
    Skinner::enableControl(dialog.handle(), control, IDC_SKIN_LABEL, false);
    EXPECT_FALSE(IsWindowEnabled(control.getWindowHandle()));
    EXPECT_FALSE(needsPaint(control.getWindowHandle()));  // Painted at once.
    EXPECT_TRUE(getFlag(label, DISABLED));
    EXPECT_TRUE(needsPaint(label));
    Skinner::enableControl(dialog.handle(), control, IDC_SKIN_LABEL, true);
    EXPECT_TRUE(IsWindowEnabled(control.getWindowHandle()));
    EXPECT_FALSE(getFlag(label, DISABLED));
}

}
}
