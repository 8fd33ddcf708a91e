#include "Backend/core/files/Bank.h"
#include "Gui/ResourceIds.h"
#include "Platform/Files.h"
#include "tests/support/ProjectFolder.h"
#include "tests/support/win32/WindowDesk.h"

#include <gtest/gtest.h>

#include <commctrl.h>
#include <prsht.h>

namespace Gui {
namespace {

using TestSupport::endMenuOf;
using TestSupport::eventually;
using TestSupport::OtherThread;
using TestSupport::projectFile;
using TestSupport::textOf;
using TestSupport::waitForDialog;
using TestSupport::WindowDesk;

constexpr int FILE_NAME = 0x47c;
constexpr int PROMPT_TEXT = 1059;
constexpr int FILE_KIND = 0x470;

struct ImportRow {
    const char* source;
    const char* name;
    const char* result;
};

class MirelGuiDialogsTest : public testing::Test {
protected:
    MirelGuiDialogsTest() {
        desk.start();
        desk.open();
    }

    // [other thread] Enters a file into the dialog with this title; an empty one cancels.
    static void answer(const std::string& title, const std::string& path) {
        const HWND dialog = waitForDialog(
            [&title](HWND window) { return textOf(window) == title && GetDlgItem(window, FILE_NAME) != nullptr; });
        if (!path.empty())
            SendMessageA(GetDlgItem(dialog, FILE_NAME), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(path.c_str()));
        PostMessageA(dialog, WM_COMMAND, path.empty() ? IDCANCEL : IDOK, 0);
        eventually([dialog] { return !IsWindow(dialog); });
    }

    // [other thread] The kinds of files that a dialog offers; cancels it.
    static std::string takeKinds(const std::string& title) {
        std::string kinds;
        const HWND dialog = waitForDialog([&title](HWND window) { return textOf(window) == title; });
        const HWND list = GetDlgItem(dialog, FILE_KIND);
        const auto count = SendMessageA(list, CB_GETCOUNT, 0, 0);
        for (LRESULT i = 0; i < count; ++i) {
            char text[256] = "";
            SendMessageA(list, CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
            kinds += std::string(text) + ";";
        }
        answer(title, "");
        return kinds;
    }

    static std::string systemPath(const std::string& path) {
        std::string full(0x1000, '\0');
        full.resize(GetFullPathNameA(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
        return full;
    }

    // A copy of one of the tests' files, under another name.
    std::string copy(const std::string& from, const std::string& name) {
        const auto content = Platform::Files::read(projectFile(from));
        EXPECT_TRUE(content) << from;
        EXPECT_TRUE(Platform::Files::replace(desk.file(name), content.value_or("")));
        return systemPath(desk.file(name));
    }

    WindowDesk desk;
};

TEST_F(MirelGuiDialogsTest, LoadTakesABank) {
    const std::string path = copy("tests/data/banks/three.bnk", "live.bnk");
    {
        const OtherThread user([&path] { answer("Load", path); });
        desk.gui().showLoadDialog();
    }
    desk.settle();
    EXPECT_EQ(desk.gui().getCurrentBankName(), "live");
    EXPECT_EQ(desk.gui().getNumberOfPrograms(), 3);
}

TEST_F(MirelGuiDialogsTest, LoadTakesAProgram) {
    const std::string path = copy("tests/data/banks/single.prg", "lead.prg");
    {
        const OtherThread user([&path] { answer("Load", path); });
        desk.gui().showLoadDialog();
    }
    desk.settle();
    EXPECT_EQ(desk.gui().getNumberOfPrograms(), 0);
    EXPECT_FALSE(static_cast<const MirelGuiIF&>(desk.gui()).getCurrentProgram().getName().empty());
}

TEST_F(MirelGuiDialogsTest, LoadThatIsCancelledChangesNothing) {
    {
        const OtherThread user([] { answer("Load", ""); });
        desk.gui().showLoadDialog();
    }
    desk.settle();
    EXPECT_EQ(desk.gui().getCurrentBankName(), "");
}

TEST_F(MirelGuiDialogsTest, LoadOffersBanksAndPrograms) {
    std::string kinds;
    {
        const OtherThread user([&kinds] { kinds = takeKinds("Load"); });
        desk.gui().showLoadDialog();
    }
    EXPECT_EQ(kinds, "Bank Files;Program Files;");
}

TEST_F(MirelGuiDialogsTest, ImportOffersBanksProgramsAndPresets) {
    std::string kinds;
    {
        const OtherThread user([&kinds] { kinds = takeKinds("Select Version 2 File To Import"); });
        desk.gui().importVersion2File();
    }
    EXPECT_EQ(kinds, "Bank Files;Program Files;Preset Files;");
    for (const ImportRow& row : {ImportRow{"tests/data/version2/bank.txt", "old.bnk", "Bank Files;"},
                                 ImportRow{"tests/data/version2/program.txt", "old.prg", "Program Files;"}}) {
        const std::string from = copy(row.source, row.name);
        {
            const OtherThread user([&] {
                answer("Select Version 2 File To Import", from);
                kinds = takeKinds("Select Name Of New File");
            });
            desk.gui().importVersion2File();
        }
        EXPECT_EQ(kinds, row.result) << row.name;
    }
}

TEST_F(MirelGuiDialogsTest, ImportConvertsBanksAndPrograms) {
    for (const ImportRow& row : {ImportRow{"tests/data/version2/bank.txt", "old.bnk", "new.bnk"},
                                 ImportRow{"tests/data/version2/program.txt", "old.prg", "new.prg"}}) {
        const std::string from = copy(row.source, row.name);
        const std::string to = systemPath(desk.file(row.result));
        {
            const OtherThread user([&from, &to] {
                answer("Select Version 2 File To Import", from);
                answer("Select Name Of New File", to);
            });
            desk.gui().importVersion2File();
        }
        desk.settle();
        EXPECT_TRUE(Platform::Files::size(desk.file(row.result))) << row.result;
    }
    EXPECT_EQ(desk.gui().getCurrentBankName(), "new");
}

TEST_F(MirelGuiDialogsTest, ImportAsksForThePresetsName) {
    const std::string from = copy("tests/data/version2/key two.pst", "key two.pst");
    std::string offered;
    {
        const OtherThread user([&from, &offered] {
            answer("Select Version 2 File To Import", from);
            const HWND prompt = waitForDialog([](HWND window) { return textOf(window) == "Enter Preset Name"; });
            offered = textOf(GetDlgItem(prompt, PROMPT_TEXT));
            SendMessageA(GetDlgItem(prompt, PROMPT_TEXT), WM_SETTEXT, 0, reinterpret_cast<LPARAM>("Old Keys"));
            PostMessageA(prompt, WM_COMMAND, IDOK, 0);
        });
        desk.gui().importVersion2File();
    }
    desk.settle();
    EXPECT_EQ(offered, "default preset name");
    EXPECT_TRUE(Platform::Files::size(desk.file("Computer Input Presets/Old Keys.pst")));
}

TEST_F(MirelGuiDialogsTest, ImportRecognisesItsFilesByTheirExtensionsInLowerCase) {
    const std::string from = copy("tests/data/version2/bank.txt", "old.BNK");
    {
        const OtherThread user([&from] { answer("Select Version 2 File To Import", from); });
        desk.gui().importVersion2File();  // Returns without another question.
    }
    desk.settle();
    EXPECT_EQ(desk.gui().getCurrentBankName(), "");
}

TEST_F(MirelGuiDialogsTest, ImportThatIsCancelledAtAnyQuestionChangesNothing) {
    const std::string bank = copy("tests/data/version2/bank.txt", "old.bnk");
    const std::string preset = copy("tests/data/version2/key two.pst", "key two.pst");
    {
        const OtherThread user([] { answer("Select Version 2 File To Import", ""); });
        desk.gui().importVersion2File();
    }
    {
        const OtherThread user([&bank] {
            answer("Select Version 2 File To Import", bank);
            answer("Select Name Of New File", "");
        });
        desk.gui().importVersion2File();
    }
    {
        const OtherThread user([&preset] {
            answer("Select Version 2 File To Import", preset);
            const HWND prompt = waitForDialog([](HWND window) { return textOf(window) == "Enter Preset Name"; });
            SendMessageA(GetDlgItem(prompt, PROMPT_TEXT), WM_SETTEXT, 0, reinterpret_cast<LPARAM>("Old Keys"));
            PostMessageA(prompt, WM_COMMAND, IDCANCEL, 0);
            eventually([prompt] { return !IsWindow(prompt); });
        });
        desk.gui().importVersion2File();
    }
    desk.settle();
    EXPECT_EQ(desk.gui().getCurrentBankName(), "");
    EXPECT_FALSE(Platform::Files::size(desk.file("Computer Input Presets/Old Keys.pst")));
}

// Acts on the setup as its user would.
void enterVelocity(const char* velocity, int button) {
    const HWND sheet = waitForDialog([](HWND window) { return textOf(window) == "Mirel Console Setup"; });
    const auto page = reinterpret_cast<HWND>(SendMessageA(sheet, PSM_GETCURRENTPAGEHWND, 0, 0));
    SendMessageA(GetDlgItem(page, IDC_SETUP_VELOCITY), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(velocity));
    PostMessageA(sheet, PSM_PRESSBUTTON, static_cast<WPARAM>(button), 0);
    eventually([sheet] { return !IsWindow(sheet); });
}

TEST_F(MirelGuiDialogsTest, SetupReachesTheDeskWithOkAlone) {
    {
        const OtherThread user([] { enterVelocity("77", PSBTN_OK); });
        desk.gui().showSetupDialog();
    }
    desk.settle();
    EXPECT_EQ(desk.mirel().getRegistrySettings().getLiteVelocity(), 77);
    {
        const OtherThread user([] { enterVelocity("55", PSBTN_CANCEL); });
        desk.gui().showSetupDialog();
    }
    desk.settle();
    EXPECT_EQ(desk.mirel().getRegistrySettings().getLiteVelocity(), 77);
}

class MirelGuiHeldKeysTest : public MirelGuiDialogsTest {
protected:
    using Strings = std::vector<std::string>;

    // What happens to a key that is down while something else gets the keyboard.
    Strings holdDuring(const std::function<void()>& action) {
        SetForegroundWindow(desk.host.handle());
        desk.gui().setFocus();
        desk.settle();
        SendMessageA(desk.window(), WM_KEYDOWN, 'A', 1);
        desk.takeKeys();
        action();
        desk.settle();
        return desk.takeKeys();
    }
};

TEST_F(MirelGuiHeldKeysTest, EveryDialogEndsThem) {
    EXPECT_EQ(holdDuring([this] {
                  const OtherThread user([] { enterVelocity("77", PSBTN_CANCEL); });
                  desk.gui().showSetupDialog();
              }),
              Strings{"up 65 0"});
    EXPECT_EQ(holdDuring([this] {
                  const OtherThread user([] { answer("Load", ""); });
                  desk.gui().showLoadDialog();
              }),
              Strings{"up 65 0"});
    EXPECT_EQ(holdDuring([this] {
                  const OtherThread user([] { answer("Select Version 2 File To Import", ""); });
                  desk.gui().importVersion2File();
              }),
              Strings{"up 65 0"});
}

TEST_F(MirelGuiHeldKeysTest, EveryMenuEndsThem) {
    const std::string bank = copy("tests/data/banks/three.bnk", "live.bnk");
    desk.mirel().getMessageManager().postLoadBank(bank);
    desk.settle();
    for (void (MirelGuiIF::*show)() : {&MirelGuiIF::showProgramMenu, &MirelGuiIF::showDefaultMidiOutputMenu}) {
        bool opened = false;
        EXPECT_EQ(holdDuring([&] {
                      const OtherThread user([&opened, thread = GetCurrentThreadId()] { opened = endMenuOf(thread); });
                      (desk.gui().*show)();
                  }),
                  Strings{"up 65 0"});
        EXPECT_TRUE(opened);
    }
}

}
}
