// The desk's ports at a real JACK server with the dummy driver, used by JACK's own programs.
#include "Host/common/desk/PortPlayer.h"
#include "Host/common/ports/MidiPorts.h"
#include "Host/common/ports/posix/JackServer.h"
#include "tests/Host/common/ports/posix/ChildProcess.h"
#include "tests/Host/common/ports/posix/JackTestClient.h"
#include "tests/Host/common/ports/posix/JackTestServer.h"
#include "tests/support/Eventually.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <mutex>
#include <thread>

namespace Host {
namespace {

using Backend::MidiEngine::MidiMessage;
using Backend::MidiEngine::MirelMidiMessage;
using TestSupport::eventually;

constexpr const char* DESK = "Mirel";
// The names that JACK's programs give their ports.
constexpr const char* MONITOR = "midi-monitor:input";
constexpr const char* SEQUENCER = "Seq:out";

bool contains(const std::vector<MidiPortId>& ids, const std::string& name) {
    return std::find(ids.begin(), ids.end(), MidiPortId{name, 1}) != ids.end();
}

class JackTest : public testing::Test {
protected:
    ~JackTest() override {
        m_ports = nullptr;
        m_programs.clear();
    }

    // The server goes on without a client that is late, and that client misses what was sent in the meantime: on a busy
    // computer an event must be played more than once.
    void startServer(JackTestServer::Cycles cycles = JackTestServer::Cycles::IN_TIME,
                     int frames = JackTestServer::CALM_FRAMES) {
        ASSERT_TRUE(m_server.start(cycles, frames)) << m_server.process()->output();
    }

    ChildProcess& server() { return *m_server.process(); }

    ChildProcess& start(const std::vector<std::string>& arguments) {
        return *m_programs.emplace_back(std::make_unique<ChildProcess>(arguments));
    }

    ChildProcess& startMonitor() {
        ChildProcess& monitor = start({"stdbuf", "-o0", "jack_midi_dump"});
        EXPECT_TRUE(hasOutput(MONITOR)) << monitor.output();
        return monitor;
    }

    // Plays note 60 again and again, 20 times a second.
    ChildProcess& startSequencer() {
        ChildProcess& sequencer = start({"jack_midiseq", "Seq", "2400", "0", "60", "1200"});
        EXPECT_TRUE(hasInput(SEQUENCER)) << sequencer.output();
        return sequencer;
    }

    bool hasInput(const std::string& name) {
        const auto observer = createMidiSystem("observer");
        return eventually([&] { return contains(observer->list().inputs, name); });
    }

    bool hasOutput(const std::string& name) {
        const auto observer = createMidiSystem("observer");
        return eventually([&] { return contains(observer->list().outputs, name); });
    }

    void connect(const std::string& from, const std::string& to) {
        ASSERT_EQ(std::system(("jack_connect '" + from + "' '" + to + "' >/dev/null 2>&1").c_str()), 0);
    }

    // All ports of a desk.
    MidiPorts& startPorts(const std::string& virtualPort = {}) {
        m_ports = std::make_unique<MidiPorts>(createMidiSystem(DESK), MidiPorts::Options{std::string(), virtualPort},
                                              [this](const MirelMidiMessage& event) { m_events.add(event); });
        update();
        return *m_ports;
    }

    void update() {
        m_ports->update();
        EXPECT_TRUE(eventually([this] { return m_ports->isIdle(); }));
    }

    void endPorts() { m_ports = nullptr; }

    // The index of an output or input; -1 if there is none or it is absent.
    static int find(const std::vector<PortRow>& rows, const std::string& name) {
        for (std::size_t i = 0; i < rows.size(); ++i)
            if (rows[i].id.name == name && rows[i].available)
                return static_cast<int>(i);
        return -1;
    }

    bool playUntilTaken(int output, std::uint32_t bytes) {
        return eventually([&] { return m_ports->play(output, bytes, 0); });
    }

    // Plays until a program has printed it. A program that has just started may not receive anything yet.
    bool playUntilPrinted(int output, std::uint32_t bytes, const ChildProcess& program, const std::string& text) {
        return eventually([&] {
            EXPECT_TRUE(playUntilTaken(output, bytes));
            EXPECT_TRUE(eventually([this] { return m_ports->isIdle(); }));
            return program.output().find(text) != std::string::npos;
        });
    }

    class Events {
    public:
        void add(const MirelMidiMessage& event) {
            const std::lock_guard lock(m_mutex);
            m_events.push_back(event);
        }
        std::vector<MirelMidiMessage> take() {
            const std::lock_guard lock(m_mutex);
            return std::exchange(m_events, {});
        }

    private:
        std::mutex m_mutex;
        std::vector<MirelMidiMessage> m_events;
    };

    bool comesIn(const std::function<bool(const MirelMidiMessage&)>& wanted) {
        return eventually([&] {
            const std::vector<MirelMidiMessage> events = m_events.take();
            return std::any_of(events.begin(), events.end(), wanted);
        });
    }

    Events m_events;
    std::unique_ptr<MidiPorts> m_ports;

private:
    JackTestServer m_server;
    std::vector<std::unique_ptr<ChildProcess>> m_programs;
};

TEST_F(JackTest, WithoutAServerTheDeskStartsWithItsRecorder) {
    MidiPorts& ports = startPorts(DESK);
    EXPECT_GE(find(ports.outputs(), Recorder::NAME), 0);
    const auto system = createMidiSystem(DESK);
    EXPECT_NE(system->name(), "JACK");
    EXPECT_EQ(system->openOutput({MONITOR, 1}), nullptr);
    EXPECT_EQ(system->openInput({SEQUENCER, 1}, [](const std::uint8_t*, std::size_t, std::int64_t) {}), nullptr);
}

TEST_F(JackTest, PortsOfOtherProgramsAreListedButNotItsOwn) {
    startServer();
    startMonitor();
    startSequencer();

    MidiPorts& ports = startPorts(DESK);
    EXPECT_GE(find(ports.inputs(), SEQUENCER), 0);
    EXPECT_GE(find(ports.outputs(), MONITOR), 0);

    const auto other = createMidiSystem("Other");
    EXPECT_EQ(other->name(), "JACK");
    EXPECT_TRUE(eventually([&other] { return contains(other->list().inputs, "Mirel:Mirel out"); }));

    update();
    for (const PortRow& row : ports.inputs())
        EXPECT_FALSE(row.id.name.starts_with("Mirel:")) << row.id.name;

    for (const PortRow& row : ports.outputs())
        EXPECT_FALSE(row.id.name.starts_with("Mirel:")) << row.id.name;
}

TEST_F(JackTest, EventsReachAnotherProgramAndNotesEndAtTheClose) {
    startServer();
    ChildProcess& monitor = startMonitor();
    MidiPorts& ports = startPorts();
    const int output = find(ports.outputs(), MONITOR);
    ASSERT_GE(output, 0);
    ASSERT_TRUE(playUntilPrinted(output, 0x2ac2, monitor, "c2 2a")) << monitor.output();
    // It ends as often as it begins.
    EXPECT_TRUE(playUntilPrinted(output, 0x643c91, monitor, "91 3c 64")) << monitor.output();
    EXPECT_TRUE(ports.close());
    EXPECT_TRUE(eventually([&] { return monitor.output().find("81 3c 40") != std::string::npos; })) << monitor.output();
}

TEST_F(JackTest, EventsOfAnotherProgramReachTheDesk) {
    startServer();
    startSequencer();
    MidiPorts& ports = startPorts();

    const int input = find(ports.inputs(), SEQUENCER);
    ASSERT_GE(input, 0);

    const auto isNote = [input](bool isOn) {
        return [input, isOn](const MirelMidiMessage& event) {
            return (isOn ? event.isNoteOn() : event.isNoteOff()) && event.getD1() == 60 && event.getInput() == input &&
                   event.isDefaultChannel();
        };
    };

    EXPECT_TRUE(comesIn(isNote(true)));
    EXPECT_TRUE(comesIn(isNote(false)));
}

TEST_F(JackTest, ProgramThatComesBackTakesItsOldRow) {
    startServer();
    MidiPorts& ports = startPorts();
    EXPECT_EQ(find(ports.inputs(), SEQUENCER), -1);

    ChildProcess& sequencer = startSequencer();
    update();

    const int input = find(ports.inputs(), SEQUENCER);
    ASSERT_GE(input, 0);

    const auto isNoteOn = [](const MirelMidiMessage& event) { return event.isNoteOn(); };
    EXPECT_TRUE(comesIn(isNoteOn));

    sequencer.end();
    ASSERT_TRUE(eventually([&] {
        update();
        return find(ports.inputs(), SEQUENCER) == -1;
    }));
    EXPECT_FALSE(ports.inputs()[static_cast<std::size_t>(input)].available);

    m_events.take();
    startSequencer();

    update();
    EXPECT_EQ(find(ports.inputs(), SEQUENCER), input);
    EXPECT_TRUE(comesIn(isNoteOn));
}

TEST_F(JackTest, VirtualPortsAreConnectedByOtherPrograms) {
    startServer();
    ChildProcess& monitor = startMonitor();
    startSequencer();
    MidiPorts& ports = startPorts(DESK);

    for (int i = 0; i < static_cast<int>(ports.inputs().size()); ++i)
        if (ports.inputs()[static_cast<std::size_t>(i)].id.copy != PortList::BUILT_IN)
            ports.enableInput(i, false);
    for (int i = 0; i < static_cast<int>(ports.outputs().size()); ++i)
        if (ports.outputs()[static_cast<std::size_t>(i)].id.name == MONITOR)
            ports.enableOutput(i, false);

    EXPECT_TRUE(eventually([&ports] { return ports.isIdle(); }));
    ASSERT_TRUE(hasInput("Mirel:Mirel out") && hasOutput("Mirel:Mirel in"));

    connect(SEQUENCER, "Mirel:Mirel in");
    connect("Mirel:Mirel out", MONITOR);
    EXPECT_TRUE(comesIn([](const MirelMidiMessage& event) { return event.isNoteOn() && event.getD1() == 60; }));

    const int output = find(ports.outputs(), DESK);
    EXPECT_TRUE(playUntilPrinted(output, 0x0b07b3, monitor, "b3 07 0b")) << monitor.output();
}

TEST_F(JackTest, SecondDeskHasANameOfItsOwnAndSeesTheFirst) {
    startServer();
    const auto first = createMidiSystem(DESK);
    const auto port = first->openVirtualOutput("Notes");
    ASSERT_NE(port, nullptr);
    const auto second = createMidiSystem(DESK);
    EXPECT_TRUE(eventually([&] { return contains(second->list().inputs, "Mirel:Notes out"); }));
    EXPECT_FALSE(contains(first->list().inputs, "Mirel:Notes out"));
    const auto other = second->openVirtualOutput("Notes");
    EXPECT_TRUE(eventually([&] { return contains(first->list().inputs, "Mirel 2:Notes out"); }));
}

TEST_F(JackTest, DesksDoNotTakeEachOthersConnectionsForPorts) {
    startServer();
    startMonitor();
    startSequencer();

    MidiPorts& ports = startPorts(DESK);
    ASSERT_TRUE(hasInput("Mirel:to midi-monitor input") && hasOutput("Mirel:from Seq out"));

    MidiPorts second(createMidiSystem(DESK), MidiPorts::Options{std::string(), DESK}, [](const MirelMidiMessage&) {});
    second.update();
    ASSERT_TRUE(eventually([&second] { return second.isIdle(); }));
    ASSERT_TRUE(hasInput("Mirel 2:to midi-monitor input") && hasOutput("Mirel 2:from Seq out"));

    const auto isConnection = [](const PortRow& row) {
        return row.id.name.find(":to ") != std::string::npos || row.id.name.find(":from ") != std::string::npos;
    };

    // At each look, either would connect to the other's last new port.
    for (int look = 0; look < 3; ++look) {
        update();
        second.update();
        ASSERT_TRUE(eventually([&second] { return second.isIdle(); }));
    }

    for (const std::vector<PortRow>& rows : {ports.inputs(), ports.outputs(), second.inputs(), second.outputs()})
        for (const PortRow& row : rows)
            EXPECT_FALSE(isConnection(row)) << row.id.name;

    EXPECT_GE(find(ports.inputs(), "Mirel 2:Mirel out"), 0);
    EXPECT_GE(find(second.outputs(), "Mirel:Mirel in"), 0);
}

TEST_F(JackTest, OnlyTheConnectionsOfDesksAreLeftOut) {
    startServer();
    const auto system = createMidiSystem(DESK);
    const JackTestClient other("Mirelle");
    EXPECT_TRUE(contains(system->list().inputs, "Mirelle:out"));
    const auto organ = JackServer::connect("Mirel Organ");
    ASSERT_NE(organ, nullptr);
    const auto port = organ->openOutput(other.input());
    ASSERT_NE(port, nullptr);
    EXPECT_TRUE(contains(system->list().inputs, "Mirel Organ:to Mirelle in"));
}

// JACK's library walks a client's ports on a thread of its own whenever any program changes something.
TEST_F(JackTest, PortsCloseWhileOtherProgramsChangeTheirs) {
    constexpr int ROUNDS = 30;
    constexpr int FRAMES = 128;
    startServer(JackTestServer::Cycles::IN_TIME, FRAMES);
    const auto desk = createMidiSystem(DESK);
    const auto other = createMidiSystem("Other");
    std::atomic<bool> isOver = false;
    std::jthread busy([&] {
        while (!isOver)
            static_cast<void>(other->openVirtualOutput("Notes"));  // Comes and goes at once.
    });

    for (int round = 0; round < ROUNDS; ++round) {
        auto first = desk->openVirtualOutput("First");
        auto second = desk->openVirtualInput("Second", [](const std::uint8_t*, std::size_t, std::int64_t) {});
        EXPECT_TRUE(first && second);
        const std::jthread closing([&first] { first = nullptr; });
        second = nullptr;
    }

    isOver = true;
}

TEST_F(JackTest, DeskSurvivesTheEndOfTheServerAndFindsTheNextOne) {
    startServer();
    ChildProcess& first = startMonitor();
    MidiPorts& ports = startPorts();

    const int output = find(ports.outputs(), MONITOR);
    ASSERT_GE(output, 0);
    ASSERT_TRUE(playUntilTaken(output, 0x643c90));

    server().kill();
    first.kill();  // A leftover client of the same name would take the next one's wake-ups.
    // More than the library's buffers hold: it must not wait endlessly for room in them.
    ASSERT_TRUE(eventually([&] {
        ports.play(output, 0x003c80, 0);
        update();
        return find(ports.outputs(), MONITOR) == -1;
    }));
    EXPECT_FALSE(ports.play(output, 0x643c90, 0));

    startServer();
    ChildProcess& monitor = startMonitor();
    ASSERT_TRUE(eventually([&] {
        update();
        return find(ports.outputs(), MONITOR) == output;
    }));
    EXPECT_TRUE(playUntilPrinted(output, 0x0b07b3, monitor, "b3 07 0b")) << monitor.output();
}

TEST_F(JackTest, EndsOfNotesWaitForAServerThatHangs) {
    startServer(JackTestServer::Cycles::COMPLETE);  // What is played once must arrive.
    const JackTestClient synth("synth");
    MidiPorts& ports = startPorts();

    const int output = find(ports.outputs(), synth.input());
    ASSERT_GE(output, 0);

    const auto isHeard = [&synth](const std::vector<std::uint8_t>& bytes) {
        return eventually([&] {
            const auto events = synth.heard();
            return std::any_of(events.begin(), events.end(), [&](const auto& event) { return event.bytes == bytes; });
        });
    };

    ASSERT_TRUE(playUntilTaken(output, 0x643c91));
    ASSERT_TRUE(isHeard({0x91, 60, 100}));

    server().suspend(true);
    EXPECT_FALSE(ports.close()) << "who closes is told";

    server().suspend(false);
    EXPECT_TRUE(isHeard({0x81, 60, 64}));
}

TEST_F(JackTest, DeskDoesWithoutAServerThatHangsFromTheBeginning) {
    startServer();
    startMonitor();
    server().suspend(true);
    MidiPorts& ports = startPorts();
    EXPECT_EQ(find(ports.outputs(), MONITOR), -1);
    EXPECT_GE(find(ports.outputs(), Recorder::NAME), 0);
    EXPECT_EQ(JackServer::connect("late"), nullptr) << "nobody waits for the same server twice";
    server().suspend(false);
    EXPECT_TRUE(eventually([&] {
        update();
        return find(ports.outputs(), MONITOR) >= 0;
    }));
}

TEST_F(JackTest, ServerThatHangsDelaysNeitherTheSlicesNorTheEnd) {
    startServer();
    startMonitor();
    MidiPorts& ports = startPorts();

    const int output = find(ports.outputs(), MONITOR);
    ASSERT_TRUE(playUntilTaken(output, 0x643c90));

    server().suspend(true);

    std::atomic<int> slices{0};
    {
        PortPlayer player(ports);
        player.start([&](std::int32_t, std::int32_t) {
            for (int i = 0; i < 100; ++i)
                player.playMidi({MidiMessage::NoteOn, 60, 100, {.output = static_cast<char>(output), .channel = 0}});
            ++slices;
        });
        EXPECT_TRUE(eventually([&slices] { return slices > 200; }));
    }

    EXPECT_GT(ports.droppedEvents(), 0u) << "the port took no more";
    EXPECT_FALSE(ports.close(std::chrono::milliseconds(100)));

    server().suspend(false);
    endPorts();
    EXPECT_TRUE(eventually([] {
        const auto place = JackServer::connect(DESK);
        return place && place->name() == DESK;
    })) << "when the server wakes up, what was left behind goes away";
}

}
}
