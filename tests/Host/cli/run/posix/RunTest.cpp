// "mirel run" as its users see it: a separate process among other programs at a JACK server.
#include "Host/common/midifile/MidiFileReader.h"
#include "Host/common/midifile/MidiFileWriter.h"
#include "Platform/Files.h"
#include "tests/Host/cli/run/RunTestBank.h"
#include "tests/Host/common/ports/posix/ChildProcess.h"
#include "tests/Host/common/ports/posix/JackTestClient.h"
#include "tests/Host/common/ports/posix/JackTestServer.h"
#include "tests/support/Eventually.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <sstream>

namespace Host::Cli {
namespace {

namespace Files = Platform::Files;
using TestSupport::eventually;
using Bytes = std::vector<std::uint8_t>;
using Sequence = std::vector<std::string>;

constexpr const char* PLAYS = " bpm";  // Part of the last line that the program prints while it starts.

std::string toText(const Bytes& bytes) {
    std::string text;
    for (const std::uint8_t byte : bytes) {
        char digits[4];
        std::snprintf(digits, sizeof(digits), "%02x", byte);
        text += (text.empty() ? "" : " ") + std::string(digits);
    }
    return text;
}

// Everything after the last occurrence of a part.
Sequence after(const Sequence& all, const std::string& part) {
    const auto last = std::find(all.rbegin(), all.rend(), part);
    return last == all.rend() ? Sequence() : Sequence(last.base(), all.end());
}

// A controller that marks a moment. Layers play it on their channels as well.
bool isMark(const std::string& event) {
    return event[0] == 'b' && event.substr(2, 4) == " 10 ";
}

Sequence withoutMarks(Sequence all) {
    std::erase_if(all, isMark);
    return all;
}

std::size_t count(const Sequence& all, const std::string& part) {
    return static_cast<std::size_t>(std::count(all.begin(), all.end(), part));
}

class RunTest : public testing::Test {
protected:
    RunTest() { EXPECT_TRUE(Files::replace(m_bank, runTestBank())); }

    void startServer() {
        ASSERT_TRUE(m_server.start(JackTestServer::Cycles::COMPLETE)) << m_server.process()->output();
        m_player.emplace("player");
    }

    // Starts the program and waits until it plays.
    ChildProcess& run(const std::vector<std::string>& options,
                      ChildProcess::Streams streams = ChildProcess::Streams::PIPE) {
        std::vector<std::string> words = m_shell;
        words.insert(words.end(), {MIREL_PROGRAM, "run", "--data", m_folder.path()});
        words.insert(words.end(), options.begin(), options.end());
        m_program.emplace(words, std::map<std::string, std::string>(), streams);
        EXPECT_TRUE(eventually(
            [this] { return m_program->output().find(PLAYS) != std::string::npos || m_program->hasEnded(); }));
        return *m_program;
    }

    // The same between the player's output and input. Events are on their way when this returns.
    ChildProcess& runWithPlayer(std::vector<std::string> options,
                                ChildProcess::Streams streams = ChildProcess::Streams::PIPE) {
        options.insert(options.end(), {"--in", m_player->output(), "--out", m_player->input(), "--bank", m_bank});
        ChildProcess& program = run(options, streams);
        synchronize();
        return program;
    }

    // Makes the player send controllers of its own until one comes back; whatever arrives afterwards is new. The server
    // connects ports between two cycles and drops what is sent before, so one is not enough.
    void synchronize() {
        const std::size_t before = m_player->heard().size();
        auto next = std::chrono::steady_clock::now();
        ASSERT_TRUE(eventually([&] {
            if (std::chrono::steady_clock::now() >= next && m_player->outputConnections() > 0) {
                m_lastMark = static_cast<std::uint8_t>((m_lastMark + 1) % 128);
                m_player->send({0xb0, 0x10, m_lastMark});
                next = std::chrono::steady_clock::now() + std::chrono::milliseconds(100);
            }
            const Sequence events = heard();
            const auto mark = std::find_if(events.begin() + static_cast<std::ptrdiff_t>(before), events.end(), isMark);
            if (mark != events.end())
                m_mark = *mark;
            return mark != events.end();
        })) << m_program->output();
    }

    Sequence heard() const {
        Sequence events;
        for (const JackTestClient::Event& event : m_player->heard())
            events.push_back(toText(event.bytes));
        return events;
    }

    // Without the controllers that serve as marks: layers play them more than once.
    Sequence heardAfterMark() const { return withoutMarks(after(heard(), m_mark)); }

    bool isHeard(const std::string& event) {
        return eventually([&] { return count(heardAfterMark(), event) > 0; });
    }

    void expectHeard(const Sequence& expected) {
        eventually([&] { return heardAfterMark().size() >= expected.size(); });
        EXPECT_EQ(heardAfterMark(), expected);
    }

    // The channel events of a MIDI file.
    static Sequence eventsOf(const std::string& path) {
        const auto bytes = Files::read(path);
        EXPECT_TRUE(bytes);
        const MidiFileResult result = readMidiFile(bytes.value_or(""));
        EXPECT_FALSE(result.error) << *result.error;
        Sequence events;
        for (const MidiFileMergedEvent& merged : mergedEvents(result.file)) {
            const MidiFileEvent& event = *merged.event;
            Bytes all = {static_cast<std::uint8_t>(event.status | event.channel), event.d1};
            if (event.status != 0xc0 && event.status != 0xd0)
                all.push_back(event.d2);
            if (event.isChannelEvent())
                events.push_back(toText(all));
        }
        return events;
    }

    // Ends the program as its user does.
    int endBy(int signal) {
        m_program->signal(signal);
        return m_program->waitForExit();
    }

    static bool connect(const std::string& from, const std::string& to) {
        return eventually([&] { return runs("jack_connect '" + from + "' '" + to + "' >/dev/null 2>&1"); });
    }

    static bool runs(const std::string& command) { return std::system(command.c_str()) == 0; }

    std::vector<std::string> m_shell;  // Starts the program; empty: this process.
    const TestSupport::TemporaryFolder m_folder;
    const std::string m_bank = m_folder.file("test.bnk");
    JackTestServer m_server;
    std::optional<JackTestClient> m_player;
    std::optional<ChildProcess> m_program;
    std::string m_mark;  // The last one that came back.

private:
    std::uint8_t m_lastMark = 0;
};

TEST_F(RunTest, EventsOfTheInputPlayThroughTheLayersOfTheBank) {
    startServer();
    runWithPlayer({});
    m_player->send({0x95, 60, 100});
    m_player->send({0xb0, 7, 80});
    m_player->send({0x80, 60, 64});
    expectHeard({"90 3c 64", "92 48 64", "b0 07 50", "b2 07 50", "80 3c 40", "82 48 40"});
}

TEST_F(RunTest, RecordHoldsWhatCameOut) {
    startServer();
    const std::string record = m_folder.file("record.mid");
    runWithPlayer({"--record", record});
    m_player->send({0x90, 60, 100});
    m_player->send({0xe0, 1, 65});
    m_player->send({0xc0, 5});
    m_player->send({0x80, 60, 64});
    m_player->send({0x90, 62, 100});

    ASSERT_TRUE(isHeard("92 4a 64"));
    EXPECT_EQ(endBy(SIGINT), 0) << m_program->output();
    ASSERT_TRUE(isHeard("82 4a 40")) << "what still sounds ends";
    // Before the mark the port may not have been open yet.
    EXPECT_EQ(withoutMarks(after(eventsOf(record), m_mark)), heardAfterMark());
    EXPECT_EQ(heardAfterMark().size(), 12u);
}

TEST_F(RunTest, NotesEndWhenTheProgramIsAskedToEnd) {
    startServer();
    for (const int signal : {SIGINT, SIGQUIT, SIGTERM, SIGHUP}) {
        runWithPlayer({});
        for (const std::uint8_t note : Bytes{60, 64, 67})
            m_player->send({0x90, note, 100});
        ASSERT_TRUE(isHeard("92 4f 64"));
        EXPECT_EQ(endBy(signal), 0) << m_program->output();
        ASSERT_TRUE(eventually([this] { return heardAfterMark().size() >= 12; })) << signal;
        const Sequence events = heardAfterMark();
        for (const char* key : {"0 3c 40", "0 40 40", "0 43 40", "2 48 40", "2 4c 40", "2 4f 40"})
            EXPECT_EQ(count(events, "8" + std::string(key)), 1u) << key << " after signal " << signal;
    }
}

TEST_F(RunTest, ProgramIsChosenByNameAndByNumber) {
    startServer();
    for (const char* program : {"Arpeggio", "2"}) {
        runWithPlayer({"--program", program});
        EXPECT_NE(m_program->output().find("program 2: Arpeggio, 250 bpm"), std::string::npos) << m_program->output();
        m_player->send({0x90, 60, 100});
        // Two rounds of the arpeggio.
        ASSERT_TRUE(eventually([this] { return heardAfterMark().size() >= 4; }));
        const Sequence events = heardAfterMark();
        EXPECT_EQ(Sequence(events.begin(), events.begin() + 3), (Sequence{"90 3c 64", "80 3c 64", "90 3c 64"}));
        EXPECT_EQ(endBy(SIGTERM), 0);
    }
}

TEST_F(RunTest, UnknownProgramIsRefused) {
    const std::string output = run({"--bank", m_bank, "--program", "Nobody"}).output();
    EXPECT_EQ(m_program->waitForExit(), 2);
    EXPECT_NE(m_program->output().find("mirel run: the bank has no program \"Nobody\""), std::string::npos) << output;
}

TEST_F(RunTest, TicksOfAnInputAreTheClock) {
    constexpr std::size_t TICKS_IN_QUARTER = 24;
    constexpr std::size_t QUARTERS = 3;
    startServer();
    run({"--in", m_player->output(), "--out", m_player->input(), "--bank", m_bank, "--program", "Arpeggio", "--clock",
         m_player->output()});
    // Each tick in a cycle of its own, with a mark behind it.
    std::uint8_t mark = 0;
    std::size_t sent = 0;

    const auto sendTick = [&] {
        if (m_player->sent().size() < sent)
            return false;
        m_player->send({0xf8});
        m_player->send({0xb0, 0x10, ++mark});
        sent += 2;
        return true;
    };

    // Events play as time passes. What is sent before the ports are connected is lost.
    ASSERT_TRUE(eventually([&] {
        if (mark < 40)
            sendTick();
        return !heard().empty();
    })) << m_program->output();

    m_player->send({0x90, 60, 100});
    ++sent;
    std::size_t ticks = 0;

    ASSERT_TRUE(eventually([&] { return (ticks += sendTick()) == QUARTERS * TICKS_IN_QUARTER; }));

    // What came with several ticks at once waits for another one.
    const std::string last = toText({0xb0, 0x10, mark});
    ASSERT_TRUE(eventually([&] {
        if (count(heard(), last) > 0)
            return true;
        if (mark < 0x7f)
            ticks += sendTick();
        return false;
    })) << last;

    const std::size_t notes = count(heard(), "90 3c 64");
    EXPECT_GE(notes, QUARTERS);
    EXPECT_LE(notes, ticks / TICKS_IN_QUARTER + 2);
}

TEST_F(RunTest, InternalClockNeedsNoTicks) {
    startServer();
    run({"--in", m_player->output(), "--bank", m_bank, "--program", "Arpeggio", "--clock", m_player->output()});
    EXPECT_EQ(endBy(SIGTERM), 0);
    runWithPlayer({"--program", "Arpeggio", "--clock", "internal"});
    m_player->send({0x90, 60, 100});
    EXPECT_TRUE(eventually([this] { return count(heardAfterMark(), "80 3c 64") >= 2; }));
}

TEST_F(RunTest, PortThatComesBackIsUsedAgain) {
    startServer();
    runWithPlayer({});
    m_player->send({0x90, 60, 100});
    ASSERT_TRUE(isHeard("92 48 64"));
    m_player.reset();
    m_player.emplace("player");
    synchronize();
    m_player->send({0x90, 62, 100});
    m_player->send({0x80, 62, 64});
    expectHeard({"90 3e 64", "92 4a 64", "80 3e 40", "82 4a 40"});
}

TEST_F(RunTest, PortsOfOneRunAreNotThoseOfTheNext) {
    startServer();
    JackTestClient other("another");
    runWithPlayer({});
    EXPECT_EQ(other.inputConnections() + other.outputConnections(), 0);
    EXPECT_EQ(endBy(SIGTERM), 0);
    run({"--bank", m_bank});
    EXPECT_NE(m_program->output().find("listens to player:out\n"), std::string::npos) << m_program->output();
    EXPECT_NE(m_program->output().find("listens to another:out\n"), std::string::npos) << m_program->output();
    EXPECT_TRUE(eventually([&other] { return other.inputConnections() + other.outputConnections() == 2; }));
}

TEST_F(RunTest, CharactersOfATerminalPlayAndRelease) {
    startServer();
    ChildProcess& program = runWithPlayer({"--keys"}, ChildProcess::Streams::TERMINAL);
    program.type("q");
    expectHeard({"90 3c 64", "92 48 64", "80 3c 64", "82 48 64"});
    program.type("\x03");
    EXPECT_EQ(program.waitForExit(), 0) << program.output();
    EXPECT_NE(program.output().find("\x1b[<u"), std::string::npos) << "the terminal is as it was";
}

TEST_F(RunTest, TerminalThatReportsReleasesHoldsNotes) {
    startServer();
    ChildProcess& program = runWithPlayer({"--keys"}, ChildProcess::Streams::TERMINAL);
    ASSERT_TRUE(eventually([&] { return program.output().find("\x1b[?u") != std::string::npos; }));

    program.type("\x1b[?11u");
    // The answer applies from the next keys on; this is longer than a press without a release.
    program.type("\x1b[113;1:1u\x1b[119;1:1u");
    ASSERT_TRUE(isHeard("92 4a 64"));

    program.type("\x1b[113;1:2u\x1b[113;1:3u");
    ASSERT_TRUE(isHeard("82 48 64"));
    EXPECT_EQ(heardAfterMark(), (Sequence{"90 3c 64", "92 48 64", "90 3e 64", "92 4a 64", "80 3c 64", "82 48 64"}));

    program.type("\x1b[119;1:3u");
    ASSERT_TRUE(isHeard("82 4a 64"));

    program.type("\x1b[99;5:1u");
    EXPECT_EQ(program.waitForExit(), 0) << program.output();
}

TEST_F(RunTest, QuitOfATerminalEndsNotesAndGivesItBack) {
    startServer();
    for (const bool tellsKeys : {false, true}) {
        ChildProcess& program = runWithPlayer({"--keys"}, ChildProcess::Streams::TERMINAL);
        ASSERT_TRUE(eventually([&] { return program.output().find("\x1b[?u") != std::string::npos; }));
        program.type("\x1b[?11u\x1b[113;1:1u");
        ASSERT_TRUE(isHeard("92 48 64"));
        program.type(tellsKeys ? "\x1b[92;5:1u" : "\x1c");
        EXPECT_EQ(program.waitForExit(), 0) << program.output();
        EXPECT_NE(program.output().find("\x1b[<u"), std::string::npos) << "the terminal is as it was";
        EXPECT_TRUE(isHeard("80 3c 40")) << tellsKeys;
        EXPECT_TRUE(isHeard("82 48 40")) << tellsKeys;
    }
}

TEST_F(RunTest, PauseEndsNotesAndGivesTheTerminalBackUntilItIsOver) {
    startServer();
    // Only a shell can resume a program that pauses.
    m_shell = {"bash", "-c", R"(set -m; "$0" "$@"; echo paused; stty -a; read -r; fg; echo ended $?)"};

    for (const bool tellsKeys : {false, true}) {
        ChildProcess& program = runWithPlayer({"--keys"}, ChildProcess::Streams::TERMINAL);
        const auto asks = [&program](int times) {
            std::size_t place = 0;
            for (int i = 0; i < times && place != std::string::npos; ++i)
                place = program.output().find("\x1b[?u", place == 0 ? 0 : place + 1);
            return place != std::string::npos;
        };
        ASSERT_TRUE(eventually([&] { return asks(1); }));
        program.type("\x1b[?11u\x1b[113;1:1u");
        ASSERT_TRUE(isHeard("92 48 64"));
        program.type(tellsKeys ? "\x1b[122;5:1u" : "\x1a");
        ASSERT_TRUE(eventually([&] { return program.output().find(" icanon") != std::string::npos; }))
            << program.output();
        EXPECT_NE(program.output().find("\x1b[<u"), std::string::npos) << program.output();
        EXPECT_TRUE(isHeard("80 3c 64")) << tellsKeys;
        EXPECT_TRUE(isHeard("82 48 64")) << tellsKeys;
        program.type("\n");
        ASSERT_TRUE(eventually([&] { return asks(2); })) << program.output();
        // Without a line's end, so not from a terminal that edits lines.
        program.type("\x1b[?11u\x1b[119;1:1u");
        EXPECT_TRUE(isHeard("92 4a 64")) << program.output();
        program.type("\x03");
        EXPECT_EQ(program.waitForExit(), 0);
        EXPECT_NE(program.output().find("ended 0"), std::string::npos) << program.output();
    }
}

TEST_F(RunTest, TerminalThatReportsNoReleasesHoldsNoNotes) {
    startServer();
    ChildProcess& program = runWithPlayer({"--keys"}, ChildProcess::Streams::TERMINAL);
    ASSERT_TRUE(eventually([&] { return program.output().find("\x1b[?u") != std::string::npos; }));
    program.type("\x1b[?1u");
    program.type("q");
    expectHeard({"90 3c 64", "92 48 64", "80 3c 64", "82 48 64"});
}

TEST_F(RunTest, SongPlaysThroughTheDeskWhichThenEnds) {
    startServer();
    const std::string song = m_folder.file("song.mid");
    MidiFileWriter writer;

    writer.add(MidiFileWriter::CONDUCTOR, {0, 0xb0, 0, 7, 80, ""});
    writer.add(MidiFileWriter::CONDUCTOR, {240, 0x90, 0, 60, 100, ""});
    writer.add(MidiFileWriter::CONDUCTOR, {480, 0x80, 0, 60, 64, ""});
    ASSERT_TRUE(Files::replace(song, *writer.content(MidiFileWriter::Layout::SINGLE_TRACK)));

    const std::string record = m_folder.file("record.mid");
    run({"--in", m_player->output(), "--out", m_player->input(), "--bank", m_bank, "--play", song, "--record", record});
    EXPECT_EQ(m_program->waitForExit(), 0);

    const Sequence expected = {"b0 07 50", "b2 07 50", "90 3c 64", "92 48 64", "80 3c 40", "82 48 40"};
    ASSERT_TRUE(eventually([&] { return count(heard(), "82 48 40") > 0; }));
    EXPECT_EQ(heard(), expected);
    EXPECT_EQ(eventsOf(record), expected);
}

// The events that jack_midi_dump has printed. Each line is a time and the bytes.
Sequence eventsOfDump(const std::string& output) {
    Sequence events;
    std::istringstream lines(output);
    for (std::string line; std::getline(lines, line);) {
        const std::size_t colon = line.find(':');
        std::istringstream words(colon == std::string::npos ? "" : line.substr(colon + 1));
        Sequence bytes;
        for (std::string word; bytes.size() < 3 && words >> word;)
            bytes.push_back(word);
        if (bytes.size() == 3 && lines.good())
            events.push_back(bytes[0] + " " + bytes[1] + " " + bytes[2]);
    }
    return events;
}

TEST_F(RunTest, ServerThatHangsAtTheStartDelaysNothing) {
    ASSERT_TRUE(m_server.start()) << m_server.process()->output();
    m_server.process()->suspend(true);
    run({"--bank", m_bank});
    EXPECT_NE(m_program->output().find(PLAYS), std::string::npos) << m_program->output();
    EXPECT_EQ(endBy(SIGINT), 0) << m_program->output();
    ChildProcess ports({MIREL_PROGRAM, "ports", "--data", m_folder.path()});
    EXPECT_EQ(ports.waitForExit(), 0) << ports.output();
    EXPECT_NE(ports.output().find("outputs:"), std::string::npos) << ports.output();
}

TEST_F(RunTest, ServerThatHangsAtTheEndIsReported) {
    // A server that waits for its clients hangs on those that exit without closing.
    ASSERT_TRUE(m_server.start(JackTestServer::Cycles::IN_TIME)) << m_server.process()->output();
    m_player.emplace("player");
    runWithPlayer({});
    m_server.process()->suspend(true);
    EXPECT_EQ(endBy(SIGINT), 0) << m_program->output();
    EXPECT_NE(m_program->output().find("mirel run: a port hung and was abandoned\n"), std::string::npos)
        << m_program->output();
    m_server.process()->suspend(false);
}

TEST_F(RunTest, VirtualPortsConnectOtherPrograms) {
    // A server that waits for its clients hangs on those that exit without closing.
    ASSERT_TRUE(m_server.start(JackTestServer::Cycles::IN_TIME)) << m_server.process()->output();

    ChildProcess dump({"stdbuf", "-o0", "jack_midi_dump"});
    ChildProcess sequencer({"jack_midiseq", "Seq", "4800", "0", "60", "2400"});

    run({"--virtual", "--bank", m_bank, "--in", "Mirel", "--out", "Mirel"});
    ASSERT_FALSE(m_program->hasEnded()) << m_program->output();
    ASSERT_TRUE(connect("Mirel:Mirel out", "midi-monitor:input")) << dump.output();
    ASSERT_TRUE(connect("Seq:out", "Mirel:Mirel in")) << sequencer.output();

    // Four rounds in a row: on a busy computer a client may miss a cycle before.
    const Sequence round = {"90 3c 40", "92 48 40", "80 3c 40", "82 48 40"};
    Sequence rounds;

    for (int i = 0; i < 4; ++i)
        rounds.insert(rounds.end(), round.begin(), round.end());
    EXPECT_TRUE(eventually([&] {
        const Sequence events = eventsOfDump(dump.output());
        return std::search(events.begin(), events.end(), rounds.begin(), rounds.end()) != events.end();
    })) << dump.output();
    EXPECT_EQ(endBy(SIGINT), 0) << m_program->output();
}

}
}
