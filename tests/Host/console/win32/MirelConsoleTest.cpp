// The program as a user starts it.
#include "Gui/Utils/windows/UserMessages.h"
#include "Host/console/win32/SingleInstance.h"
#include "Platform/Files.h"
#include "tests/support/CurrentFolder.h"
#include "tests/support/ProjectFolder.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/win32/TestWindows.h"

#include <gtest/gtest.h>

#include <atomic>

namespace Host::Console {
namespace {

using TestSupport::eventually;
using TestSupport::projectFile;
using TestSupport::textOf;

std::string programPath() {
    std::string path(0x8000, '\0');
    path.resize(GetModuleFileNameA(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path.substr(0, path.rfind('\\') + 1) + MIREL_CONSOLE;
}

// A process of the program; its output goes to a file.
class Program {
public:
    Program(const std::string& arguments, const std::string& outputFile, WORD show = SW_SHOWNORMAL) {
        SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
        const HANDLE output = CreateFileA(outputFile.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                          &inherited, CREATE_ALWAYS, 0, nullptr);
        STARTUPINFOA info{};
        info.cb = sizeof info;
        info.dwFlags = STARTF_USESTDHANDLES | STARTF_USESHOWWINDOW;
        info.wShowWindow = show;
        info.hStdOutput = output;
        info.hStdError = output;
        std::string line = "\"" + programPath() + "\" " + arguments;
        EXPECT_TRUE(
            CreateProcessA(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &info, &m_process))
            << line;
        CloseHandle(output);
    }

    ~Program() {
        TerminateProcess(m_process.hProcess, 99);
        WaitForSingleObject(m_process.hProcess, INFINITE);
        CloseHandle(m_process.hProcess);
        CloseHandle(m_process.hThread);
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    // The exit status; 98 if it hangs.
    DWORD wait() const {
        constexpr DWORD LIMIT = 60000;
        constexpr DWORD HANGS = 98;
        if (WaitForSingleObject(m_process.hProcess, LIMIT) != WAIT_OBJECT_0)
            return HANGS;
        DWORD status = HANGS;
        GetExitCodeProcess(m_process.hProcess, &status);
        return status;
    }

    // Its frame, once it is visible.
    HWND waitForFrame() const {
        HWND frame = nullptr;
        eventually([this, &frame] {
            frame = findFrame();
            return frame != nullptr || WaitForSingleObject(m_process.hProcess, 0) == WAIT_OBJECT_0;
        });
        return frame;
    }

    HWND findFrame() const {
        for (HWND window = FindWindowExA(nullptr, nullptr, "MirelConsoleFrame", nullptr); window;
             window = FindWindowExA(nullptr, window, "MirelConsoleFrame", nullptr)) {
            DWORD process = 0;
            GetWindowThreadProcessId(window, &process);
            if (process == m_process.dwProcessId && IsWindowVisible(window))
                return window;
        }
        return nullptr;
    }

    // The message box that it shows.
    HWND waitForBox() const {
        HWND box = nullptr;
        eventually([this, &box] {
            for (box = FindWindowExA(nullptr, nullptr, "#32770", nullptr); box;
                 box = FindWindowExA(nullptr, box, "#32770", nullptr)) {
                DWORD process = 0;
                GetWindowThreadProcessId(box, &process);
                if (process == m_process.dwProcessId && IsWindowVisible(box))
                    return true;
            }
            return false;
        });
        return box;
    }

    // The text of the box, which this closes.
    std::string answerBox() const {
        const HWND box = waitForBox();
        const std::string text = textOf(GetDlgItem(box, 0xffff));
        PostMessageA(box, WM_COMMAND, IDOK, 0);
        eventually([box] { return !IsWindow(box); });
        return text;
    }

private:
    PROCESS_INFORMATION m_process{};
};

class MirelConsoleTest : public testing::Test {
protected:
    std::string data() const { return "--data \"" + folder.file("data") + "\""; }
    std::string output() const { return folder.file("output.txt"); }
    std::string readOutput() const { return Platform::Files::read(output()).value_or(""); }

    std::string copy(const std::string& from, const std::string& name) const {
        EXPECT_TRUE(Platform::Files::replace(folder.file(name), Platform::Files::read(projectFile(from)).value_or("")));
        return folder.file(name);
    }

    static bool waitForTitle(HWND frame, const std::string& title) {
        return eventually([&] { return textOf(frame) == title; });
    }

    TestSupport::TemporaryFolder folder;
};

TEST_F(MirelConsoleTest, PrintsItsUsageAndVersion) {
    EXPECT_EQ(Program("--help", output()).wait(), 0u);
    EXPECT_TRUE(readOutput().starts_with("usage: MirelConsole")) << readOutput();
    EXPECT_EQ(Program("--version", output()).wait(), 0u);
    EXPECT_EQ(readOutput(), "Mirel Console 3 LE 3.2\n");
}

TEST_F(MirelConsoleTest, SaysWhatItDoesNotUnderstand) {
    EXPECT_EQ(Program("--bogus", output()).wait(), 1u);
    EXPECT_EQ(readOutput(), "MirelConsole: unknown option --bogus; see MirelConsole --help\n");
}

TEST_F(MirelConsoleTest, ShowsADeskThatFillsItsFrameAndClosesIt) {
    const Program program(data(), output());
    const HWND frame = program.waitForFrame();
    ASSERT_NE(frame, nullptr) << readOutput();
    EXPECT_TRUE(waitForTitle(frame, "Mirel Console 3 LE"));

    const HWND desk = FindWindowExA(frame, nullptr, "MirelGuiWindow2008LE", nullptr);
    ASSERT_NE(desk, nullptr);

    RECT client;
    RECT inside;

    GetClientRect(frame, &client);
    GetClientRect(desk, &inside);
    EXPECT_EQ(client.right, inside.right);
    EXPECT_EQ(client.bottom, inside.bottom);
    EXPECT_GT(inside.right, 300);

    PostMessageA(frame, WM_CLOSE, 0, 0);
    EXPECT_EQ(program.wait(), 0u);
    EXPECT_TRUE(Platform::Files::size(folder.file("data/settings")));
}

TEST_F(MirelConsoleTest, OpensABankAndAProgramInIt) {
    const std::string bank = copy("tests/data/banks/three.bnk", "Live Set.bnk");
    const Program program(data() + " --bank \"" + bank + "\" --program 2", output());
    const HWND frame = program.waitForFrame();
    ASSERT_NE(frame, nullptr) << readOutput();
    EXPECT_TRUE(eventually([frame] {
        const std::string title = textOf(frame);
        return title.starts_with("2 - ") && title.ends_with(" - Live Set - Mirel Console 3 LE");
    })) << textOf(frame);
}

TEST_F(MirelConsoleTest, OpensAFileOfAnyCase) {
    const std::string bank = copy("tests/data/banks/three.bnk", "Loud.BNK");
    const Program program(data() + " \"" + bank + "\"", output());
    const HWND frame = program.waitForFrame();
    ASSERT_NE(frame, nullptr) << readOutput();
    EXPECT_TRUE(eventually([frame] { return textOf(frame).ends_with(" - Loud - Mirel Console 3 LE"); }))
        << textOf(frame);
}

TEST_F(MirelConsoleTest, ASecondStartHandsItsFilesToTheFirst) {
    const Program first(data(), output());
    const HWND frame = first.waitForFrame();
    ASSERT_NE(frame, nullptr) << readOutput();
    const std::string bank = copy("tests/data/banks/three.bnk", "Late.bnk");
    const Program second(data() + " \"" + bank + "\"", folder.file("second.txt"));
    EXPECT_EQ(second.wait(), 0u);
    EXPECT_TRUE(eventually([frame] { return textOf(frame).ends_with(" - Late - Mirel Console 3 LE"); }))
        << textOf(frame);
    const Program other("--data \"" + folder.file("other") + "\"", folder.file("third.txt"));
    EXPECT_NE(other.waitForFrame(), nullptr);
}

TEST_F(MirelConsoleTest, ASecondStartIsAcceptedWhileTheFirstAsksItsUser) {
    const Program first(data() + " --bank \"" + folder.file("missing.bnk") + "\"", output());
    const HWND frame = first.waitForFrame();
    ASSERT_NE(frame, nullptr) << readOutput();
    const std::string bank = copy("tests/data/banks/three.bnk", "Late.bnk");
    const Program second(data() + " \"" + bank + "\"", folder.file("second.txt"));
    EXPECT_EQ(second.wait(), 0u);
    EXPECT_TRUE(eventually([frame] { return textOf(frame).ends_with(" - Late - Mirel Console 3 LE"); }))
        << textOf(frame);
    EXPECT_EQ(first.answerBox(), folder.file("missing.bnk") + ": can't be read.");
    PostMessageA(frame, WM_CLOSE, 0, 0);
    EXPECT_EQ(first.wait(), 0u);
}

TEST_F(MirelConsoleTest, ASecondStartFindsItsProgramInItsOwnFolder) {
    const Program first(data(), output());
    const HWND frame = first.waitForFrame();
    ASSERT_NE(frame, nullptr) << readOutput();
    copy("tests/data/banks/single.prg", "Lead.PRG");
    {
        const TestSupport::CurrentFolder here(folder.path());
        const Program second(data() + " --program Lead.PRG", folder.file("second.txt"));
        EXPECT_EQ(second.wait(), 0u);
    }
    EXPECT_TRUE(eventually([frame] { return textOf(frame).starts_with("1 - "); })) << textOf(frame);
}

TEST_F(MirelConsoleTest, RefusesAFileThatIsNotTheDesks) {
    const Program program(data(), output());
    const HWND frame = program.waitForFrame();
    ASSERT_NE(frame, nullptr) << readOutput();
    SingleInstance other(folder.file("data"));
    EXPECT_EQ(other.enter({"", "", {"C:\\notes.txt"}}), SingleInstance::Result::HANDED_OVER);
    EXPECT_EQ(program.answerBox(), "C:\\notes.txt: is neither a bank (.bnk) nor a program (.prg).");
    EXPECT_EQ(other.enter({"", "nothing", {}}), SingleInstance::Result::HANDED_OVER);
    EXPECT_EQ(program.answerBox(), "The bank has no program \"nothing\".");
    PostMessageA(frame, WM_CLOSE, 0, 0);
    EXPECT_EQ(program.wait(), 0u);
}

TEST_F(MirelConsoleTest, ItsBoxesDisableNoOtherProgram) {
    const TestSupport::TestWindow worker;
    SetForegroundWindow(worker.handle());
    const Program program(data() + " --bank \"" + folder.file("missing.bnk") + "\"", output(), SW_SHOWMINNOACTIVE);
    std::atomic<HWND> box = nullptr;
    const TestSupport::OtherThread user([&program, &box] {
        box = program.waitForBox();
        EXPECT_EQ(GetWindow(box, GW_OWNER), nullptr);
        PostMessageA(box, WM_COMMAND, IDOK, 0);
    });
    EXPECT_TRUE(TestSupport::pumpUntil([&box] { return box && !IsWindow(box); }));
    EXPECT_TRUE(IsWindowEnabled(worker.handle()));
}

TEST_F(MirelConsoleTest, ABrokenBankLeavesAUsableDesk) {
    ASSERT_TRUE(Platform::Files::replace(folder.file("broken.bnk"), "<bank><program>"));
    const Program program(data() + " --bank \"" + folder.file("broken.bnk") + "\" --program 2", output());
    const HWND frame = program.waitForFrame();
    ASSERT_NE(frame, nullptr) << readOutput();
    EXPECT_EQ(program.answerBox(), folder.file("broken.bnk") + ": holds no readable programs.");
    EXPECT_EQ(program.answerBox(), "The bank has no program \"2\".");
    PostMessageA(frame, WM_CLOSE, 0, 0);
    EXPECT_EQ(program.wait(), 0u);
}

TEST_F(MirelConsoleTest, APlaceThatCanNotBeWrittenIsReportedBeforeTheDeskStarts) {
    const Program program(data() + " --record \"" + folder.file("none") + "\\take.mid\"", output());
    EXPECT_EQ(program.wait(), 1u);
    EXPECT_NE(readOutput().find("take.mid: can't be written"), std::string::npos) << readOutput();
    ASSERT_TRUE(Platform::Files::replace(folder.file("file"), "text"));
    const Program other("--data \"" + folder.file("file") + "\"", output());
    EXPECT_EQ(other.wait(), 1u);
    EXPECT_NE(readOutput().find("file: is not a folder and can't be created"), std::string::npos) << readOutput();
    EXPECT_EQ(Platform::Files::read(folder.file("file")).value_or(""), "text");
}

TEST_F(MirelConsoleTest, AProgramFileWithoutAProgramIsReported) {
    ASSERT_TRUE(Platform::Files::replace(folder.file("empty.prg"), "<Program/>"));
    const Program program(data() + " --program \"" + folder.file("empty.prg") + "\"", output());
    const HWND frame = program.waitForFrame();
    ASSERT_NE(frame, nullptr) << readOutput();
    EXPECT_EQ(program.answerBox(), folder.file("empty.prg") + ": holds no readable program.");
    PostMessageA(frame, WM_CLOSE, 0, 0);
    EXPECT_EQ(program.wait(), 0u);
}

TEST_F(MirelConsoleTest, TheEndOfTheSessionKeepsTheRecording) {
    const std::string record = folder.file("played.mid");
    const Program program(data() + " --record \"" + record + "\"", output());
    const HWND frame = program.waitForFrame();
    ASSERT_NE(frame, nullptr) << readOutput();
    SendMessageA(frame, WM_ENDSESSION, TRUE, 0);
    EXPECT_TRUE(Platform::Files::read(record).value_or("").starts_with("MThd"));
    EXPECT_EQ(program.wait(), 0u) << "an installer waits for the end";
}

TEST_F(MirelConsoleTest, TheEndOfTheSessionDoesNotWaitForAnAnswer) {
    const std::string bank = copy("tests/data/banks/three.bnk", "Live.bnk");
    const Program program(data() + " \"" + folder.file("missing.bnk") + "\" \"" + bank + "\" --program 2", output());
    const HWND frame = program.waitForFrame();
    ASSERT_NE(frame, nullptr) << readOutput();
    ASSERT_NE(program.waitForBox(), nullptr);
    SendMessageA(frame, WM_ENDSESSION, TRUE, 0);
    EXPECT_EQ(program.wait(), 0u) << readOutput();
}

TEST_F(MirelConsoleTest, ATakeThatCanNoLongerBeWrittenIsRescued) {
    const std::string record = folder.file("played.mid");
    const Program program(data() + " --record \"" + record + "\"", output());
    const HWND frame = program.waitForFrame();
    ASSERT_NE(frame, nullptr) << readOutput();
    ASSERT_TRUE(Platform::Files::createFolders(record));
    PostMessageA(frame, WM_CLOSE, 0, 0);
    const std::string rescued = Platform::Files::join(folder.file("data"), "Rescued recording.mid");
    EXPECT_EQ(program.answerBox(), record + ": can't be written. The recording is in " + rescued + ".");
    EXPECT_EQ(program.wait(), 1u);
    EXPECT_TRUE(Platform::Files::read(rescued).value_or("").starts_with("MThd"));
}

TEST_F(MirelConsoleTest, ComesBackWhereItWas) {
    for (const bool isMinimised : {false, true}) {
        const std::string arguments = "--data \"" + folder.file(isMinimised ? "minimised" : "shown") + "\"";
        {
            const Program program(arguments, output());
            const HWND frame = program.waitForFrame();
            ASSERT_NE(frame, nullptr) << readOutput();
            SetWindowPos(frame, nullptr, 33, 44, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
            if (isMinimised)
                ShowWindow(frame, SW_MINIMIZE);
            EXPECT_TRUE(eventually([&] { return (IsIconic(frame) != FALSE) == isMinimised; }));
            PostMessageA(frame, WM_CLOSE, 0, 0);
            EXPECT_EQ(program.wait(), 0u);
        }
        const Program program(arguments, output());
        const HWND frame = program.waitForFrame();
        ASSERT_NE(frame, nullptr) << readOutput();
        RECT rect;
        GetWindowRect(frame, &rect);
        EXPECT_EQ(rect.left, 33) << isMinimised;
        EXPECT_EQ(rect.top, 44) << isMinimised;
    }
}

TEST_F(MirelConsoleTest, WritesWhatWasPlayed) {
    const std::string record = folder.file("played.mid");
    const Program program(data() + " --record \"" + record + "\"", output());

    const HWND frame = program.waitForFrame();
    ASSERT_NE(frame, nullptr) << readOutput();

    const HWND desk = FindWindowExA(frame, nullptr, "MirelGuiWindow2008LE", nullptr);
    // One of the built-in keys that play a note.
    SendMessageA(desk, WM_KEYDOWN, 'Q', 1);
    SendMessageA(desk, WM_KEYUP, 'Q', static_cast<LPARAM>(0xc0000001));
    SendMessageA(desk, WM_KEYDOWN, 'Z', 1);
    SendMessageA(desk, WM_KEYUP, 'Z', static_cast<LPARAM>(0xc0000001));

    PostMessageA(frame, WM_CLOSE, 0, 0);
    EXPECT_EQ(program.wait(), 0u);

    const std::string content = Platform::Files::read(record).value_or("");
    EXPECT_TRUE(content.starts_with("MThd"));
    EXPECT_NE(content.find('\x90'), std::string::npos);
}

}
}
