#include "Backend/core/log/DisplayMessageManager.h"

#include "Backend/core/log/DisplayListener.h"
#include "Backend/core/log/DisplayMessages.h"
#include "Backend/core/log/EventLine.h"
#include "Backend/midi/MirelMidiMessage.h"
#include "Platform/AutoResetEvent.h"
#include "tests/support/MessageWords.h"
#include "tests/support/RunningDesk.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

namespace Backend::Display {
namespace {

using MidiEngine::MidiInputPort;
using MidiEngine::MidiMessage;
using MidiEngine::MidiOutputPort;
using MidiEngine::MirelMidiMessage;
using TestSupport::makePorts;
using TestSupport::releaseCopy;

class Shown : public DisplayListener {
public:
    void append(const char* text) override { calls.push_back(std::string("append ") + text); }
    void setText(const char* text) override { calls.push_back(std::string("set ") + text); }

    std::vector<std::string> calls;
};

using Strings = std::vector<std::string>;

TEST(DisplayLogTest, TextIsShownOnceAndFromTheStartWhenAskedFor) {
    DisplayLog log;
    Shown shown;
    log.flush(shown);
    log.add("one ");
    log.add("two ");
    log.flush(shown);
    log.flush(shown);
    log.add("three");
    log.flush(shown);
    log.sendAll(shown);
    log.flush(shown);
    EXPECT_EQ(shown.calls, (Strings{"append one two ", "append three", "set one two three"}));
}

TEST(DisplayLogTest, TextOf15000BytesIsDropped) {
    DisplayLog log;
    log.add(std::string(15000, 'x'));
    EXPECT_EQ(log.getText(), "");
    log.add(std::string(14999, 'x'));
    EXPECT_EQ(log.getText().size(), 14999u);
}

void fill(DisplayLog& log, std::size_t size) {
    log.add("older");
    while (log.getText().size() + 10000 < size)
        log.add(std::string(10000, 'x'));
    log.add(std::string(size - log.getText().size(), 'y'));
    ASSERT_EQ(log.getText().size(), size);
}

TEST(DisplayLogTest, AFullLogKeepsItsLastHalfAndTheNewText) {
    DisplayLog log;
    fill(log, 29990);
    const std::string before = log.getText();
    log.add(std::string(20, 'n'));
    EXPECT_EQ(log.getText(), before.substr(14995) + std::string(20, 'n'));
}

TEST(DisplayLogTest, ALogIsFullAt30000Bytes) {
    DisplayLog log;
    fill(log, 29990);
    log.add(std::string(9, 'n'));
    EXPECT_EQ(log.getText().size(), 29999u);
    log.add("n");
    EXPECT_EQ(log.getText().size(), 14999u + 1);
}

// What was cut off reaches the listener only with the next whole text.
TEST(DisplayLogTest, AfterACutOnlyTheNewTextIsAppended) {
    DisplayLog log;
    Shown shown;
    fill(log, 29990);
    log.add(std::string(20, 'n'));
    log.flush(shown);
    EXPECT_EQ(shown.calls, Strings{"append " + std::string(20, 'n')});
}

TEST(DisplayLogTest, ACutLeavesNoHalfOfACharacter) {
    DisplayLog log;
    log.add("x");
    for (int i = 0; i < 4; ++i) {
        std::string text;
        for (int k = 0; k < 3749; ++k)
            text += "\xC3\xAB";
        log.add(text);
    }
    ASSERT_EQ(log.getText().size(), 29993u);
    log.add("0123456");
    EXPECT_EQ(log.getText().substr(0, 2), "\xC3\xAB");
}

struct Line {
    int status;
    int d1;
    int d2;
    int channel;
    const char* text;
};

TEST(EventLineTest, EachStatusHasItsForm) {
    const Line lines[] = {
        {0x80, 60, 64, 0, "\t1\tNote Off\t60 (C4)\t64\r\n"},
        {0x90, 61, 127, 15, "\t16\tNote On\t61 (C#4)\t127\r\n"},
        {0x90, 0, 0, 9, "\t10\tNote On\t0 (C-1)\t0\r\n"},
        {0xa0, 60, 5, 2, "\t3\tKey Pressure\t60\t5\r\n"},
        {0xb0, 7, 99, 3, "\t4\tController Change\t7 (Channel Volume)\t99\r\n"},
        {0xb0, 3, 1, 3, "\t4\tController Change\t3 (Undefined)\t1\r\n"},
        {0xc0, 0, 55, 4, "\t5\tProgram Change\t0 (Acoustic Grand)\r\n"},
        {0xd0, 101, 55, 5, "\t6\tChannel Pressure\t101\r\n"},
        {0xe0, 0, 64, 6, "\t7\tPitch Bend\t8192\r\n"},
        {0xe0, 127, 127, 6, "\t7\tPitch Bend\t16383\r\n"},
        {0xe0, 1, 0, 6, "\t7\tPitch Bend\t1\r\n"},
        {0xf0, 1, 2, 7, "\t8\tSystem Exclusive\r\n"},
        {0xf2, 1, 2, 7, "\t\tSong Position\t257\r\n"},
        {0xf3, 9, 2, 7, "\t\tSong Select\t9\r\n"},
        {0xf5, 9, 2, 7, "\t\tUnofficial Bus Select\t9\r\n"},
        {0xf6, 1, 2, 7, "\t\tTune Request\r\n"},
        {0xf7, 1, 2, 7, "\t\tEnd Of Sysex\r\n"},
        {0xf8, 1, 2, 7, "\t\tTiming Tick\r\n"},
        {0xfa, 1, 2, 7, "\t\tStart Song\r\n"},
        {0xfb, 1, 2, 7, "\t\tContinue Song\r\n"},
        {0xfc, 1, 2, 7, "\t\tStop Song\r\n"},
        {0xfe, 1, 2, 7, "\t\tActive Sensing\r\n"},
        {0xff, 1, 2, 7, "\t\tSystem Reset\r\n"},
    };

    for (const Line& line : lines)
        EXPECT_EQ(describeEvent(MirelMidiMessage(static_cast<MidiMessage::MessageType>(line.status),
                                                 static_cast<char>(line.d1), static_cast<char>(line.d2),
                                                 {.channel = static_cast<char>(line.channel)})),
                  line.text)
            << line.status;
}

TEST(EventLineTest, AnythingButAnEventIsADash) {
    for (const unsigned status : {0xf1u, 0xf4u, 0xf9u, 0xfdu, 0x00u, 0x10u, 0x7fu, 0x100u, 0x190u, 0xffffffffu}) {
        MirelMidiMessage message;
        message.setStatus(static_cast<MidiMessage::MessageType>(status));
        EXPECT_EQ(describeEvent(message), "-\r\n") << status;
    }
}

TEST(EventLineTest, BytesOutOfRangeDoNoHarm) {
    const auto describe = [](MidiMessage::MessageType status, int d1, int d2) {
        MidiMessage message(status, static_cast<char>(d1), static_cast<char>(d2), 0);
        return describeEvent(MirelMidiMessage(message, {.channel = 0}, Cell()));
    };
    EXPECT_EQ(describe(MidiMessage::ControllerChange, 200, 0), "\t1\tController Change\t-56 (Undefined)\t0\r\n");
    EXPECT_EQ(describe(MidiMessage::ProgramChange, 128, 0), "\t1\tProgram Change\t-128 (Undefined)\r\n");
    EXPECT_EQ(describe(MidiMessage::PitchBend, 0, 255), "\t1\tPitch Bend\t-128\r\n");
}

class DisplayMessageManagerTest : public testing::Test {
protected:
    ~DisplayMessageManagerTest() override { m_display.stop(); }

    void start(bool numbers, bool inputs, bool outputs) {
        m_display.start(numbers, inputs, outputs);
        m_display.postSetInputPorts(makePorts<MidiInputPort>({"In 0", "In 1"}));
        m_display.postSetOutputPorts(makePorts<MidiOutputPort>({"Out 0", "Out 1"}));
    }

    static MirelMidiMessage tick(int output, int input) {
        return MirelMidiMessage(MidiMessage::TimingTick, 0, 0, {.output = static_cast<char>(output), .channel = 0},
                                {.input = static_cast<char>(input)});
    }

    std::string log() {
        Shown shown;
        m_display.postSetListener(&shown);
        m_display.postSendAll();
        m_display.postSetListener(nullptr);
        m_display.waitUntilIdle();
        EXPECT_EQ(shown.calls.size(), 1u);
        const std::string begin = "set Mirel Console 3.2\r\n";
        EXPECT_EQ(shown.calls.at(0).substr(0, begin.size()), begin);
        return shown.calls.at(0).substr(begin.size());
    }

    DisplayMessageManager m_display;
};

TEST_F(DisplayMessageManagerTest, EventsBearTheNameOfTheirPort) {
    start(false, true, true);
    m_display.postAddInputEvent(tick(0, 1));
    m_display.postAddOutputEvent(tick(1, 0));
    for (const int unknown : {-1, 2, 127, -128}) {
        m_display.postAddInputEvent(tick(0, unknown));
        m_display.postAddOutputEvent(tick(unknown, 0));
    }
    std::string expected = "> In 1\t\tTiming Tick\r\nOut 1\t\tTiming Tick\r\n";
    for (int i = 0; i < 4; ++i)
        expected += "> ???\t\tTiming Tick\r\n???\t\tTiming Tick\r\n";
    EXPECT_EQ(log(), expected);
}

TEST_F(DisplayMessageManagerTest, NumbersAreSpentOnlyWhileTheyAreShown) {
    start(true, true, true);
    m_display.postAddInputEvent(tick(0, 0));
    m_display.postAddOutputEvent(tick(0, 0));
    m_display.postSetDisplayNumbers(false);
    m_display.postAddOutputEvent(tick(0, 0));
    m_display.postSetDisplayNumbers(true);
    m_display.postAddText("text\r\n");
    m_display.postAddOutputEvent(tick(9, 0));

    EXPECT_EQ(log(),
              "0  > In 0\t\tTiming Tick\r\n"
              "1  Out 0\t\tTiming Tick\r\n"
              "Out 0\t\tTiming Tick\r\n"
              "text\r\n"
              "2  ???\t\tTiming Tick\r\n");
}

TEST_F(DisplayMessageManagerTest, EventsThatAreNotShownSpendNoNumber) {
    start(true, false, true);
    m_display.postAddInputEvent(tick(0, 0));
    m_display.postAddOutputEvent(tick(0, 0));
    m_display.postSetDisplayInputs(true);
    m_display.postSetDisplayOutputs(false);
    m_display.postAddOutputEvent(tick(0, 0));
    m_display.postAddInputEvent(tick(0, 0));
    EXPECT_EQ(log(), "0  Out 0\t\tTiming Tick\r\n1  > In 0\t\tTiming Tick\r\n");
}

TEST_F(DisplayMessageManagerTest, TextOfAHiddenLogComesWithTheFirstFlush) {
    start(false, false, false);
    Shown shown;
    m_display.postSetListener(&shown);
    m_display.postSendAll();
    m_display.postAddText("one ");
    m_display.postAddText("two");
    m_display.waitUntilIdle();

    EXPECT_EQ(shown.calls, Strings{"set Mirel Console 3.2\r\n"});

    m_display.postFlush();
    m_display.postFlush();
    m_display.postSetListener(nullptr);
    m_display.postAddText("three");
    m_display.postFlush();
    m_display.waitUntilIdle();

    EXPECT_EQ(shown.calls, (Strings{"set Mirel Console 3.2\r\n", "append one two"}));

    m_display.postSetListener(&shown);
    m_display.postFlush();
    m_display.postSetListener(nullptr);
    m_display.waitUntilIdle();

    EXPECT_EQ(shown.calls.at(2), "append three");
}

// The numbers are those of the table; each request is executed by its number alone.
TEST_F(DisplayMessageManagerTest, RequestsHaveTheirNumbers) {
    Shown shown;
    const auto request = [this](UINT number, WPARAM w, LPARAM l) {
        MSG message{};
        message.message = number;
        message.wParam = w;
        message.lParam = l;
        m_display.handleMessage(message);
    };

    request(32875, 0, reinterpret_cast<LPARAM>(static_cast<DisplayListener*>(&shown)));
    request(32870, 0, releaseCopy<LPARAM>(std::string("text ")));
    request(32872, 0, 0);
    request(32876, 7, 0);
    request(32877, 7, 0);
    request(32878, 7, 0);
    request(32879, releaseCopy<WPARAM>(makePorts<MidiInputPort>({"In"})), 0);
    request(32880, releaseCopy<WPARAM>(makePorts<MidiOutputPort>({"Out"})), 0);
    request(32873, 0, releaseCopy<LPARAM>(tick(0, 0)));
    request(32874, 0, releaseCopy<LPARAM>(tick(0, 0)));
    request(32872, 0, 0);
    request(32876, 0, 0);
    request(32877, 0, 0);
    request(32873, 0, releaseCopy<LPARAM>(tick(0, 0)));
    request(32874, 0, releaseCopy<LPARAM>(tick(0, 0)));
    request(32878, 0, 0);
    request(32874, 0, releaseCopy<LPARAM>(tick(0, 0)));
    for (const UINT nothing : {32868u, 32881u, 0u})
        request(nothing, ~WPARAM{0}, -1);
    request(32871, 0, 0);
    const std::string first = "0  > In\t\tTiming Tick\r\n1  Out\t\tTiming Tick\r\n";

    EXPECT_EQ(shown.calls,
              (Strings{"append text ", "append " + first, "set text " + first + "Out\t\tTiming Tick\r\n"}));
}

// The address sanitizer finds what is not destroyed.
TEST_F(DisplayMessageManagerTest, WhatComesAfterTheStopIsDisposedOf) {
    class Late : public DisplayListener {
    public:
        explicit Late(DisplayMessageManager& display) : m_display(display) {}
        void append(const char*) override {}

        // On the display's thread: much of what is posted here comes after the request to stop.
        void setText(const char*) override {
            m_entered.set();
            m_stopped.wait();
            for (int i = 0; i < 200; ++i) {
                m_display.postAddText("late");
                m_display.postAddInputEvent(tick(0, 0));
                m_display.postAddOutputEvent(tick(0, 0));
                m_display.postSetInputPorts(makePorts<MidiInputPort>({"In"}));
                m_display.postSetOutputPorts(makePorts<MidiOutputPort>({"Out"}));
                std::this_thread::yield();
            }
        }

        Platform::AutoResetEvent m_entered;
        Platform::AutoResetEvent m_stopped;

    private:
        DisplayMessageManager& m_display;
    };
    start(false, true, true);
    Late late(m_display);
    m_display.postSetListener(&late);
    m_display.postSendAll();
    late.m_entered.wait();
    std::thread stopper([this] { m_display.stop(); });
    late.m_stopped.set();
    stopper.join();
    EXPECT_TRUE(m_display.isIdle());
}

}
}
