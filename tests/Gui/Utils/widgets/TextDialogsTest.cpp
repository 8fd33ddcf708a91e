#include "Gui/Utils/skin/FieldText.h"
#include "Gui/Utils/widgets/ModalDialog.h"
#include "Gui/Utils/widgets/TextPrompt.h"
#include "Gui/Utils/windows/UserMessages.h"
#include "tests/Gui/Utils/widgets/WidgetPanel.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include <string>

namespace Gui {
namespace {

using TestSupport::OtherThread;
using TestSupport::textOf;
using TestSupport::waitForDialog;

constexpr int TEXT = 1059;

void press(HWND dialog, int id) {
    SendMessageA(GetDlgItem(dialog, id), BM_CLICK, 0, 0);
}

HWND waitForPrompt() {
    return waitForDialog([](HWND window) { return GetPropA(window, "EditBoxDialog") != nullptr; });
}

HWND waitForError() {
    return waitForDialog([](HWND window) { return textOf(window) == "Error"; });
}

void waitForEnd(HWND window) {
    EXPECT_TRUE(TestSupport::eventually([&] { return !IsWindow(window); }));
}

struct Seen {
    std::string caption, prompt, text, error;
};

TEST(TextPromptTest, ShowsItsTextsAndGivesTheLineBackTrimmed) {
    TextPrompt prompt("Enter Preset Name", "Preset Name:", "default preset name");
    Seen seen;
    std::optional<std::string> result;
    {
        const OtherThread user([&] {
            const HWND dialog = waitForPrompt();
            seen = {textOf(dialog), textOf(GetDlgItem(dialog, 1060)), textOf(GetDlgItem(dialog, TEXT)), ""};
            SendMessageA(GetDlgItem(dialog, TEXT), WM_SETTEXT, 0, reinterpret_cast<LPARAM>("  Zo\xc3\xab's Bass \t"));
            press(dialog, IDOK);
        });
        result = prompt.run(nullptr);
    }
    EXPECT_EQ(seen.caption, "Enter Preset Name");
    EXPECT_EQ(seen.prompt, "Preset Name:");
    EXPECT_EQ(seen.text, "default preset name");
    EXPECT_EQ(result, "Zo\xc3\xab's Bass");
}

TEST(TextPromptTest, DefaultIsTakenAsItStands) {
    TextPrompt prompt("Caption", "Prompt", "default preset name");
    std::optional<std::string> result;
    {
        const OtherThread user([&] { press(waitForPrompt(), IDOK); });
        result = prompt.run(nullptr);
    }
    EXPECT_EQ(result, "default preset name");
}

TEST(TextPromptTest, CancelGivesNothing) {
    TextPrompt prompt("Caption", "Prompt", "default");
    std::optional<std::string> result = "before";
    {
        const OtherThread user([&] { press(waitForPrompt(), IDCANCEL); });
        result = prompt.run(nullptr);
    }
    EXPECT_EQ(result, std::nullopt);
}

TEST(TextPromptTest, BlankLineIsRefused) {
    TextPrompt prompt("Caption", "Prompt", "default");
    Seen seen;
    std::optional<std::string> result;
    bool stayed = false;
    {
        const OtherThread user([&] {
            const HWND dialog = waitForPrompt();
            SendMessageA(GetDlgItem(dialog, TEXT), WM_SETTEXT, 0, reinterpret_cast<LPARAM>("  "));
            PostMessageA(dialog, WM_COMMAND, IDOK, 0);
            const HWND error = waitForError();
            seen.error = textOf(GetDlgItem(error, 0xffff));
            PostMessageA(error, WM_COMMAND, IDOK, 0);
            waitForEnd(error);
            stayed = IsWindow(dialog) != FALSE;
            SendMessageA(GetDlgItem(dialog, TEXT), WM_SETTEXT, 0, reinterpret_cast<LPARAM>("x"));
            press(dialog, IDOK);
        });
        result = prompt.run(nullptr);
    }
    EXPECT_EQ(seen.error, "Entry cannot be blank");
    EXPECT_TRUE(stayed);
    EXPECT_EQ(result, "x");
}

TEST(TextPromptTest, BlankLineCanBeAllowed) {
    TextPrompt prompt("Caption", "Prompt", "", true);
    std::optional<std::string> result;
    {
        const OtherThread user([&] { press(waitForPrompt(), IDOK); });
        result = prompt.run(nullptr);
    }
    EXPECT_EQ(result, "");
}

class Work : public ModalDialog {
public:
    Work() : ModalDialog(UM_MODAL_WORK_DONE, "Importing Preset...") {}

    void start(HWND started) override {
        dialog = started;
        textAtStart = textOf(GetDlgItem(started, TEXT));
        markedAtStart = GetPropA(GetDlgItem(started, TEXT), "MYSET") != nullptr;
    }

    HWND dialog = nullptr;
    std::string textAtStart;
    bool markedAtStart = false;
};

TEST(ModalDialogTest, StaysUntilTheWorkIsDone) {
    Work work;
    bool known = false;
    bool stayed = false;
    {
        const OtherThread desk([&] {
            const HWND dialog = waitForDialog([](HWND window) { return GetPropA(window, "ModalDialog") != nullptr; });
            known = GetPropA(dialog, "ModalDialog") == &work;
            // The user can't end it.
            SendMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
            SendMessageA(dialog, WM_COMMAND, IDOK, 0);
            SendMessageA(dialog, UM_MODAL_WORK_DONE + 1, 0, 0);
            stayed = IsWindow(dialog) && IsWindowVisible(dialog);
            PostMessageA(dialog, UM_MODAL_WORK_DONE, 0, 0);
        });
        work.run(nullptr);
    }
    EXPECT_TRUE(known);
    EXPECT_TRUE(stayed);
    EXPECT_EQ(work.textAtStart, "Importing Preset...");
    EXPECT_TRUE(work.markedAtStart);
    EXPECT_FALSE(IsWindow(work.dialog));
}

// A dialog that ends while it starts.
class QuickWork : public Work {
public:
    void start(HWND started) override { PostMessageA(started, UM_MODAL_WORK_DONE, 0, 0); }
};

TEST(ModalDialogTest, MayBeDoneAtOnce) {
    QuickWork work;
    work.run(nullptr);
    SUCCEED();
}

// Work that can't even start.
class FailingWork : public Work {
public:
    void start(HWND started) override {
        Work::start(started);
        throw std::runtime_error("of the desk");
    }
};

TEST(ModalDialogTest, WorkThatDoesNotBeginEndsIt) {
    FailingWork work;
    work.run(nullptr);
    EXPECT_NE(work.dialog, nullptr);
    EXPECT_FALSE(IsWindow(work.dialog));
}

class FieldTextTest : public WidgetTest {
protected:
    FieldTextTest() {
        panel.answer = [this](const TestSupport::TestWindow::Message& message) -> LRESULT {
            if (message.id == WM_COMMAND && message.wParam == MAKEWPARAM(IDC_TEST_EDIT, EN_CHANGE))
                heard += takeProgramsChange(panel.getWindowHandle(), IDC_TEST_EDIT) ? "program " : "user ";
            return 0;
        };
    }

    std::string heard;
};

TEST_F(FieldTextTest, ChangesOfTheProgramAreDistinguishedFromTheUsers) {
    setFieldText(panel.getWindowHandle(), IDC_TEST_EDIT, "12");
    EXPECT_EQ(heard, "program ");
    SendMessageA(panel.item(IDC_TEST_EDIT), WM_CHAR, '3', 1);
    EXPECT_EQ(heard, "program user ");
    EXPECT_EQ(GetPropA(panel.item(IDC_TEST_EDIT), "MYSET"), nullptr);
    setFieldText(panel.getWindowHandle(), IDC_TEST_EDIT, "12");
    EXPECT_EQ(heard, "program user program ");
}

// It sends no notification when its text is set.
TEST_F(FieldTextTest, AnEditOfSeveralLinesKeepsNoMark) {
    constexpr int LINES = 5000;
    const HWND edit = CreateWindowExA(0, "Edit", "", WS_CHILD | ES_MULTILINE, 0, 0, 50, 50, panel.getWindowHandle(),
                                      reinterpret_cast<HMENU>(INT_PTR{LINES}), nullptr, nullptr);
    setFieldText(panel.getWindowHandle(), LINES, "0,4");
    EXPECT_EQ(TestSupport::textOf(edit), "0,4");
    EXPECT_EQ(GetPropA(edit, "MYSET"), nullptr);
    SendMessageA(edit, WM_CHAR, '5', 1);
    EXPECT_FALSE(takeProgramsChange(panel.getWindowHandle(), LINES));
}

}
}
