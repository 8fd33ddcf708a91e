#include "Host/cli/run/RunCommand.h"

#include "Backend/core/MirelMessageManager.h"
#include "Backend/core/files/Bank.h"
#include "Backend/core/files/BankFile.h"
#include "Backend/core/files/Program.h"
#include "Backend/core/installation/MirelUtils.h"
#include "Backend/core/installation/Product.h"
#include "Backend/core/settings/RegistrySettings.h"
#include "Backend/functions/values/SelectType.h"
#include "Host/cli/Command.h"
#include "Host/cli/InputFile.h"
#include "Host/cli/run/RunOptions.h"
#include "Host/cli/run/SongInput.h"
#include "Host/cli/run/TerminalKeys.h"
#include "Host/cli/script/ScriptArguments.h"
#include "Host/common/desk/InputEvent.h"
#include "Host/common/desk/PortDesk.h"
#include "Host/common/desk/RecordTarget.h"
#include "Host/common/desk/StartChoices.h"
#include "Host/common/midifile/MidiFileReader.h"
#include "Platform/Files.h"
#include "Platform/StopRequest.h"

#include <algorithm>
#include <cstdio>

namespace Host::Cli {

using namespace Backend;
using std::chrono::milliseconds;

namespace {

constexpr const char* PORT_NAME = "Mirel";

constexpr CommandUsage USAGE{
    R"(usage: mirel run [--in NAME]... [--out NAME]... [--bank FILE] [--program NAME] [--clock internal|NAME] [--keys]
                 [--play FILE.mid] [--record FILE.mid] [--virtual] [--seconds N] [--data DIR]

Plays in real time until Ctrl+C.
  --in, --out   use only these inputs and outputs in this run, by name or by number as "mirel ports" lists them;
                the first output is the default one (default: all enabled ports)
  --bank        the bank to load (default: the one in the settings, or the built-in set-up)
  --program     a program of the bank by name or by number, or a program file (.prg)
  --clock       follow the desk's own clock, or the timing ticks of an input
  --keys        play on this terminal's keys
  --play        play a MIDI file into the desk, as if live, and end after it
  --record      write what was played to a MIDI file at the end
  --virtual     open an input and an output that other programs can connect to
  --seconds     end after this time
  --data        keep the desk's settings and folders in this folder
)",
    "; see mirel run --help\n"};

class RunError : public CommandError {
public:
    explicit RunError(const std::string& text) : CommandError("mirel run: " + text) {}
};

std::string describePort(const PortRow& row) {
    return row.id.copy > 1 ? row.id.name + " (" + std::to_string(row.id.copy) + ")" : row.id.name;
}

// The index of the port that the user means. A prefix also matches, because systems append to names.
int findPort(const std::vector<PortRow>& rows, const std::string& wanted, const char* what) {
    if (const auto number = parseNumber(wanted)) {
        if (*number < 1 || static_cast<std::size_t>(*number) > rows.size())
            throw RunError("there is no " + std::string(what) + " number " + wanted);
        return *number - 1;
    }
    const auto find = [&rows](auto matches) {
        const auto found = std::find_if(rows.begin(), rows.end(), matches);
        return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
    };
    int index = find([&](const PortRow& row) { return describePort(row) == wanted; });
    if (index < 0)
        index = find([&](const PortRow& row) { return row.available && describePort(row).starts_with(wanted); });
    if (index < 0)
        throw RunError("there is no " + std::string(what) + " \"" + wanted + "\"; see mirel ports");
    return index;
}

std::vector<int> findPorts(const std::vector<PortRow>& rows, const std::vector<std::string>& wanted, const char* what) {
    std::vector<int> indices;
    indices.reserve(wanted.size());
    for (const std::string& name : wanted)
        indices.push_back(findPort(rows, name, what));
    return indices;
}

bool contains(const std::vector<int>& indices, std::size_t index) {
    return std::find(indices.begin(), indices.end(), static_cast<int>(index)) != indices.end();
}

class RunningDesk {
public:
    explicit RunningDesk(const RunOptions& options)
        : m_options(options),
          m_desk(createMidiSystem(PORT_NAME), {.product = MIREL_PRODUCT,
                                               .dataFolder = MirelUtils::getMirelAppDataDir(),
                                               .virtualPort = options.virtualPorts ? PORT_NAME : "",
                                               .keepsSwitches = false,
                                               .recordsAll = !options.recordFile.empty()}) {
        if (!options.recordFile.empty() && !canRecordTo(options.recordFile))
            throw RunError(options.recordFile + ": can't be written");
    }

    void start() {
        m_desk.start();
        choosePorts();
        loadPrograms();
        chooseClock();
        m_desk.waitUntilIdle();
        m_desk.ports().waitUntilIdle();
        printState();
    }

    // Plays until it is over or somebody ends it.
    void play() {
        constexpr milliseconds STEP{10};
        constexpr milliseconds LOOK{100};   // When idle, how often to check that the player still plays.
        constexpr milliseconds TAIL{1500};  // Lets the end of a song fade.
        const auto song = readSong();
        const auto keys = openKeys();
        auto start = std::chrono::steady_clock::now();
        auto songEnd = std::chrono::steady_clock::time_point::max();
        while (!m_desk.hasFailed()) {
            const auto now = std::chrono::steady_clock::now();
            const auto elapsed = std::chrono::duration_cast<std::chrono::microseconds>(now - start);
            milliseconds step = keys ? milliseconds(0) : LOOK;
            if (m_options.length)
                step = std::clamp(std::chrono::ceil<milliseconds>(*m_options.length - elapsed), milliseconds(0), step);
            if (song && !song->isAtEnd()) {
                song->playUntil(elapsed, [this](const MidiFileEvent& event) { playIn(event); });
                step = milliseconds(1);
                if (song->isAtEnd())
                    songEnd = now;
            }
            const bool songIsOver = song && song->isAtEnd() && !m_options.length && now - songEnd >= TAIL;
            if (songIsOver || (m_options.length && elapsed >= *m_options.length))
                return;
            if (keys)
                playKeys(*keys, song && !song->isAtEnd() ? milliseconds(1) : STEP);
            if (Platform::waitForStopRequest(step) || (keys && keys->isInterrupted()))
                return;
            if (Platform::isPauseRequested()) {
                pause(keys.get());
                const auto length = std::chrono::steady_clock::now() - now;
                start += length;
                if (song && song->isAtEnd())
                    songEnd += length;
            }
        }
        throw RunError("the player has stopped");
    }

    void stop() {
        if (!m_desk.stop())
            std::fprintf(stderr, "mirel run: a port hung and was abandoned\n");
        if (m_options.recordFile.empty())
            return;
        const Recorder& recorder = m_desk.ports().recorder();
        const auto file = keepRecording(recorder, m_options.recordFile);
        if (file != m_options.recordFile)
            std::fprintf(stderr, "mirel run: %s: can't be written\n", m_options.recordFile.c_str());
        if (!file)
            throw RunError("the recording is lost");
        std::printf("recorded %zu events to %s\n", recorder.size(), file->c_str());
        if (file != m_options.recordFile)
            throw RunError("the recording had to be written elsewhere");
    }

private:
    MirelMessageManager& manager() { return m_desk.mirel().getMessageManager(); }

    void choosePorts() {
        const auto inputs = m_desk.ports().inputs();
        if (!m_options.inputs.empty()) {
            const auto wanted = findPorts(inputs, m_options.inputs, "input");
            for (std::size_t i = 0; i < inputs.size(); ++i)
                manager().postEnableMidiInput(static_cast<int>(i), contains(wanted, i));
        }
        const auto outputs = m_desk.ports().outputs();
        const auto wanted = findPorts(outputs, m_options.outputs, "output");
        if (!wanted.empty())
            for (std::size_t i = 0; i < outputs.size(); ++i)
                manager().postEnableMidiOutput(static_cast<int>(i), contains(wanted, i));
        m_desk.waitUntilIdle();
        const int present = m_desk.mirel().getRegistrySettings().getDefaultMidiOutput();
        if (const int output = wanted.empty() ? findBetterOutput(outputs, present) : wanted.front(); output >= 0)
            manager().postChangeDefaultMidiOutput(SelectType(SelectType::SPECIFIC, output));
    }

    void loadPrograms() {
        const std::string& bank =
            m_options.bank.empty() ? m_desk.mirel().getRegistrySettings().getDefaultBank() : m_options.bank;
        if (!m_options.bank.empty() && !Platform::Files::size(bank))
            throw RunError(bank + ": can't be read");
        if (!bank.empty())
            manager().postLoadBank(bank);
        m_desk.waitUntilIdle();
        if (!m_options.bank.empty() && m_desk.mirel().getCurrentBank().getProgramNames().empty())
            throw RunError(bank + ": holds no programs");
        if (!m_options.program.empty())
            loadProgram(m_options.program);
    }

    void loadProgram(const std::string& wanted) {
        if (wanted.ends_with(".prg")) {
            if (!Platform::Files::size(wanted))
                throw RunError(wanted + ": can't be read");
            if (BankFile::readProgramNames(wanted).empty())
                throw RunError(wanted + ": holds no program");
            manager().postLoadProgram(wanted);
            return;
        }
        const int index = findProgram(m_desk.mirel().getCurrentBank().getProgramNames(), wanted);
        if (index < 0)
            throw RunError("the bank has no program \"" + wanted + "\"");
        manager().postChangeProgram(SelectType(SelectType::SPECIFIC, index));
    }

    void chooseClock() {
        if (m_options.clock.empty())
            return;
        const int source = m_options.clock == RunOptions::INTERNAL_CLOCK
                               ? Program::NO_TEMPO_SOURCE
                               : findPort(m_desk.ports().inputs(), m_options.clock, "input");
        manager().postSetTempoSource(static_cast<char>(source), true);
    }

    void printState() {
        const int output = m_desk.mirel().getRegistrySettings().getDefaultMidiOutput();
        const auto outputs = m_desk.ports().outputs();
        for (const PortRow& row : m_desk.ports().inputs())
            if (row.available && row.settings.enabled)
                std::printf("listens to %s\n", describePort(row).c_str());
        if (output >= 0 && static_cast<std::size_t>(output) < outputs.size())
            std::printf("plays to %s\n", describePort(outputs[static_cast<std::size_t>(output)]).c_str());
        const Program& program = m_desk.mirel().getCurrentProgram();
        std::printf("program %d: %s, %d bpm\n", program.getIndex() + 1,
                    program.getName().empty() ? "the built-in set-up" : program.getName().c_str(), program.getTempo());
        std::fflush(stdout);
    }

    std::unique_ptr<SongInput> readSong() const {
        if (m_options.song.empty())
            return nullptr;
        std::string bytes;
        std::string error;
        if (!readInputFile(m_options.song, bytes, error))
            throw RunError(m_options.song + ": " + error);
        const MidiFileResult result = readMidiFile(bytes);
        if (result.error)
            throw RunError(m_options.song + ": " + *result.error);
        return std::make_unique<SongInput>(result.file);
    }

    std::unique_ptr<TerminalKeys> openKeys() const {
        if (!m_options.keys)
            return nullptr;
        auto keys = TerminalKeys::open();
        if (!keys)
            throw RunError("--keys needs a terminal");
        return keys;
    }

    void playIn(const MidiFileEvent& event) {
        using MidiEngine::MirelMidiMessage;
        manager().postPlayMidi(makeInputEvent(static_cast<MidiEngine::MidiMessage::MessageType>(event.status),
                                              static_cast<char>(event.d1), static_cast<char>(event.d2),
                                              MirelMidiMessage::DEFAULT_CHANNEL, MirelMidiMessage::DEFAULT_INPUT));
    }

    // Stays silent, with the terminal restored, until the user resumes the program.
    void pause(TerminalKeys* keys) {
        if (keys)
            for (const KeyEvent& event : keys->giveBack())
                manager().postKeyUp(event.key);
        m_desk.waitUntilIdle();
        m_desk.pause();
        Platform::pauseProgram();
        if (keys)
            keys->takeAgain();
        m_desk.resume();
    }

    void playKeys(TerminalKeys& keys, milliseconds limit) {
        for (const KeyEvent& event : keys.read(limit)) {
            if (event.isDown)
                manager().postKeyDown(event.key, event.isRepeat);
            else
                manager().postKeyUp(event.key);
        }
    }

    const RunOptions& m_options;
    PortDesk m_desk;
};

// However it ends, sounding notes are ended and the recording is written.
void playToTheEnd(RunningDesk& desk) {
    try {
        desk.play();
    } catch (const RunError&) {
        desk.stop();
        throw;
    }
    desk.stop();
}

ExitStatus run(const RunOptions& options) {
    Platform::watchForStopRequests();
    if (!options.dataFolder.empty())
        MirelUtils::useDataFolder(options.dataFolder);
    RunningDesk desk(options);
    desk.start();
    playToTheEnd(desk);
    return DONE;
}

}

int runRun(const std::vector<std::string>& arguments) {
    return runWithOptions(USAGE, arguments, RunOptions::parse, run);
}

}
