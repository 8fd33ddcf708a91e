// The desk with its window under more load than it ever gets: floods of events while the window shows, hides and goes.
#include "Backend/core/files/Bank.h"
#include "Backend/core/log/DisplayListener.h"
#include "Backend/functions/values/SelectType.h"
#include "Platform/Files.h"
#include "tests/support/LogText.h"
#include "tests/support/ProjectFolder.h"
#include "tests/support/win32/WindowDesk.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <charconv>
#include <optional>
#include <thread>

namespace Gui {
namespace {

using Backend::MidiEngine::MidiMessage;
using Backend::MidiEngine::MirelMidiMessage;
using TestSupport::pump;
using TestSupport::pumpUntil;
using TestSupport::textOf;
using TestSupport::WindowDesk;

constexpr std::int32_t AT_ONCE = -1;

// One of a stream of events in which every note that begins also ends.
MirelMidiMessage makeEvent(int number, char output, char input) {
    constexpr int KINDS = 4;
    constexpr int NOTES = 128;
    constexpr int CHANNELS = 16;
    constexpr std::array<MidiMessage::MessageType, KINDS> STATUS = {MidiMessage::NoteOn, MidiMessage::ControllerChange,
                                                                    MidiMessage::NoteOff, MidiMessage::PitchBend};
    const int round = number / KINDS;
    return {STATUS[static_cast<std::size_t>(number % KINDS)],
            static_cast<char>(round % NOTES),
            64,
            static_cast<char>(round / NOTES % CHANNELS),
            output,
            MirelMidiMessage::DEFAULT_ZONE,
            input,
            AT_ONCE};
}

std::vector<std::string> splitLines(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t begin = 0;
    for (std::size_t end; (end = text.find("\r\n", begin)) != std::string::npos; begin = end + 2)
        lines.push_back(text.substr(begin, end - begin));
    return lines;
}

// The number at the start of an event's line.
std::optional<int> numberOf(const std::string& line) {
    int number = 0;
    const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), number);
    if (error != std::errc() || line.compare(static_cast<std::size_t>(end - line.data()), 2, "  ") != 0)
        return std::nullopt;
    return number;
}

// Checks at every step that a window still answers.
class AnswerWatch {
public:
    AnswerWatch(HWND window, const std::atomic<int>& progress)
        : m_thread([this, window, &progress] { ask(window, progress); }) {}
    ~AnswerWatch() { end(); }
    AnswerWatch(const AnswerWatch&) = delete;
    AnswerWatch& operator=(const AnswerWatch&) = delete;

    void end() {
        m_isOver = true;
        if (m_thread.joinable())
            pumpUntil([this] { return m_isDone.load(); });
        if (m_thread.joinable())
            m_thread.join();
    }

    int answers() const { return m_answers; }
    int silences() const { return m_silences; }

private:
    void ask(HWND window, const std::atomic<int>& progress) {
        constexpr UINT LIMIT = 30000;  // In milliseconds; only a hang takes so long.
        constexpr int STEP = 200;
        for (int next = 0; !m_isOver; next += STEP) {
            while (progress < next && !m_isOver)
                std::this_thread::yield();
            DWORD_PTR unused = 0;
            ++(SendMessageTimeoutA(window, WM_NULL, 0, 0, SMTO_NORMAL, LIMIT, &unused) ? m_answers : m_silences);
        }
        m_isDone = true;
    }

    std::atomic<bool> m_isOver = false;
    std::atomic<bool> m_isDone = false;
    std::atomic<int> m_answers = 0;
    std::atomic<int> m_silences = 0;
    std::thread m_thread;
};

class WindowStormTest : public testing::Test {
protected:
    static constexpr int EVENTS_EACH_WAY = 100000;

    WindowStormTest() {
        desk.prepareSettings([](Backend::RegistrySettings& settings) {
            settings.setDisplayNumbers(true);
            settings.setDisplayMidiInputEvents(true);
            settings.setDisplayMidiOutputEvents(true);
        });
        desk.onPlayed = [this](const MirelMidiMessage& message) {
            ++played;
            if (message.isNoteOn())
                ++noteOns;
            if (message.isNoteOff())
                ++noteOffs;
        };
        desk.start();
        desk.open();
        desk.startPlayer();
    }

    Backend::MidiEngine::MidiEngineMessageManager& engine() { return desk.mirel().getMidiEngineMessageManager(); }

    HWND logEdit() {
        const HWND root = FindWindowExA(desk.window(), nullptr, "TamselPanel2008", nullptr);
        return GetDlgItem(FindWindowExA(root, nullptr, nullptr, "Gui::Display::DisplayPanel"), 1074);
    }

    std::string shown() {
        constexpr std::size_t CAPACITY = 30001;
        std::string text(CAPACITY, '\0');
        text.resize(static_cast<std::size_t>(
            SendMessageA(logEdit(), WM_GETTEXT, CAPACITY, reinterpret_cast<LPARAM>(text.data()))));
        return text;
    }

    // Sends events out and lets others come in at the same time, while checking that the window answers.
    void storm(int eventsEachWay) {
        AnswerWatch watch(desk.window(), played);
        std::atomic<int> done = 0;
        std::thread out([&] {
            for (int i = 0; i < eventsEachWay; ++i)
                engine().postPlayMidi(makeEvent(i, 0, MirelMidiMessage::DEFAULT_INPUT));
            ++done;
        });
        std::thread in([&] {
            for (int i = 0; i < eventsEachWay; ++i)
                desk.mirel().getMessageManager().postProcessMidiInputEvent(
                    makeEvent(i, MirelMidiMessage::DEFAULT_OUTPUT, 1));
            ++done;
        });
        EXPECT_TRUE(pumpUntil([&] { return done == 2; }));
        out.join();
        in.join();
        EXPECT_TRUE(pumpUntil([&] { return played == eventsEachWay; })) << played;
        desk.settle();
        watch.end();
        EXPECT_GT(watch.answers(), eventsEachWay / 1000);
        EXPECT_EQ(watch.silences(), 0);
    }

    void expectAllIsRight() {
        EXPECT_EQ(played, EVENTS_EACH_WAY);
        EXPECT_EQ(noteOns, EVENTS_EACH_WAY / 4);
        EXPECT_EQ(noteOffs, EVENTS_EACH_WAY / 4);
        for (int note = 0; note < 128; ++note)
            EXPECT_EQ(desk.gui().getMainMusicKeyboardCtl().getCount(Backend::Note(static_cast<std::uint8_t>(note))), 0)
                << note;
        expectNothingSounds();
        desk.close();
        expectLog(splitLines(TestSupport::readLog(desk.mirel().getDisplayMessageManager())));
    }

    // A note that the engine believed to be sounding would be ended now.
    void expectNothingSounds() {
        engine().sendReset();
        desk.settle();
        EXPECT_EQ(noteOffs, EVENTS_EACH_WAY / 4);
    }

    static void expectLog(const std::vector<std::string>& lines) {
        ASSERT_GT(lines.size(), 100u);
        const int first = 2 * EVENTS_EACH_WAY - static_cast<int>(lines.size());
        for (std::size_t i = 1; i < lines.size(); ++i)  // The oldest line may be cut.
            ASSERT_EQ(numberOf(lines[i]), first + static_cast<int>(i)) << lines[i];
        EXPECT_EQ(numberOf(lines.back()), 2 * EVENTS_EACH_WAY - 1);
    }

    std::atomic<int> played = 0;
    std::atomic<int> noteOns = 0;
    std::atomic<int> noteOffs = 0;
    WindowDesk desk;
};

TEST_F(WindowStormTest, LosesNothingWhileTheLogShows) {
    desk.gui().showDisplay(true);
    storm(EVENTS_EACH_WAY);
    const std::string end = std::to_string(2 * EVENTS_EACH_WAY - 1) + "  ";
    EXPECT_TRUE(pumpUntil([&] {
        const auto lines = splitLines(shown());
        return !lines.empty() && lines.back().starts_with(end);
    })) << shown().substr(shown().size() / 2);
    EXPECT_LT(shown().size(), 30000u);
    expectAllIsRight();
}

TEST_F(WindowStormTest, LosesNothingWhileTheLogIsHidden) {
    storm(EVENTS_EACH_WAY);
    EXPECT_EQ(shown().find("In 1"), std::string::npos);
    desk.gui().showDisplay(true);
    const std::string end = std::to_string(2 * EVENTS_EACH_WAY - 1) + "  ";
    EXPECT_TRUE(pumpUntil([&] { return shown().find("\n" + end) != std::string::npos; }));
    expectAllIsRight();
}

TEST_F(WindowStormTest, KeysThatAreHeldStayHeldThroughIt) {
    SendMessageA(desk.window(), WM_KEYDOWN, 'A', 1);
    storm(EVENTS_EACH_WAY / 10);
    desk.takeKeys();
    SetFocus(desk.host.handle());
    desk.gui().setFocus();
    desk.settle();
    SetFocus(desk.host.handle());
    desk.settle();
    EXPECT_EQ(desk.takeKeys(), std::vector<std::string>{"up 65 0"});
}

// Events that pour in and out of a desk until it ends.
class Flood {
public:
    explicit Flood(WindowDesk& desk) {
        m_threads[0] = std::thread([this, &desk] {
            for (int i = 0; !m_isOver; ++i)
                desk.mirel().getMidiEngineMessageManager().postPlayMidi(makeEvent(i, 0, -1));
        });
        m_threads[1] = std::thread([this, &desk] {
            for (int i = 0; !m_isOver; ++i)
                desk.mirel().getMessageManager().postProcessMidiInputEvent(makeEvent(i, -1, 1));
        });
        m_threads[2] = std::thread([this, &desk] {
            for (int i = 0; !m_isOver; ++i)
                desk.mirel().displayString("said " + std::to_string(i) + "\r\n");
        });
    }
    ~Flood() {
        m_isOver = true;
        for (std::thread& thread : m_threads)
            thread.join();
    }
    Flood(const Flood&) = delete;
    Flood& operator=(const Flood&) = delete;

private:
    std::atomic<bool> m_isOver = false;
    std::array<std::thread, 3> m_threads;
};

class WindowClosingTest : public testing::Test {
protected:
    WindowClosingTest() {
        desk.prepareSettings([](Backend::RegistrySettings& settings) {
            settings.setDisplayMidiInputEvents(true);
            settings.setDisplayMidiOutputEvents(true);
        });
        desk.start();
    }

    HWND logEdit() {
        const HWND root = FindWindowExA(desk.window(), nullptr, "TamselPanel2008", nullptr);
        return GetDlgItem(FindWindowExA(root, nullptr, nullptr, "Gui::Display::DisplayPanel"), 1074);
    }

    // Dispatches one message, if there is one.
    static void handOutOne() {
        MSG message;
        if (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageA(&message);
    }

    std::string copy(const std::string& from, const std::string& name) {
        EXPECT_TRUE(Platform::Files::replace(desk.file(name),
                                             Platform::Files::read(TestSupport::projectFile(from)).value_or("")));
        return desk.file(name);
    }

    WindowDesk desk;
};

TEST_F(WindowClosingTest, ClosesWhileEventsPourIn) {
    constexpr int ROUNDS = 20;
    desk.startPlayer();
    for (int round = 0; round < ROUNDS; ++round) {
        desk.open().showDisplay(round % 2 == 0);
        {
            const Flood flood(desk);
            const HWND edit = logEdit();
            EXPECT_TRUE(TestSupport::eventually([&] {
                handOutOne();
                SendMessageA(GetParent(edit), WM_TIMER, 0, 0);  // The flood leaves no room for the system's own timers.
                return round % 2 != 0 || GetWindowTextLengthA(edit) > 1000;
            }));
            desk.gui().destroy();  // Returns while they go on.
            EXPECT_EQ(desk.mirel().getGuiWindowHandle(), nullptr);
        }
        desk.close();
    }
}

TEST_F(WindowClosingTest, ClosesDuringALoadAndDuringAChangeOfTheBank) {
    constexpr int ROUNDS = 60;
    const std::string bank = copy("tests/data/banks/three.bnk", "live.bnk");
    const std::string program = copy("tests/data/banks/single.prg", "lead.prg");
    desk.startPlayer();
    for (int round = 0; round < ROUNDS; ++round) {
        desk.open();
        auto& manager = desk.mirel().getMessageManager();
        switch (round % 3) {
            case 0: manager.postLoadProgram(program); break;
            case 1: manager.postLoadBank(bank); break;
            default: manager.postChangeProgram(SelectType(SelectType::SPECIFIC, round % 2)); break;
        }
        for (int i = 0; i < round / 3; ++i)  // Ends at a different moment of the load each time.
            handOutOne();
        desk.close();
    }
    desk.open();
    desk.mirel().getMessageManager().postLoadBank(bank);
    desk.settle();
    EXPECT_EQ(desk.gui().getCurrentBankName(), "live");
    EXPECT_EQ(desk.gui().getNumberOfPrograms(), 3);
}

}
}
