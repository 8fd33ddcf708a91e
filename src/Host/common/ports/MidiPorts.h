#pragma once

#include "Backend/midi/MidiPort.h"
#include "Host/common/clock/ClockInput.h"
#include "Host/common/ports/InputTranslator.h"
#include "Host/common/ports/MidiSystem.h"
#include "Host/common/ports/PortLine.h"
#include "Host/common/ports/PortList.h"
#include "Host/common/ports/Recorder.h"

#include <array>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace Host {

// All ports of the desk: the lists of present and past ports, their files, and a line to each port that is enabled and
// present. update(), called about once a second, detects ports that come and go.
//
// Only update() and close() wait for the system, so only they can hang with it.
class MidiPorts {
public:
    struct Options {
        std::string dataFolder;  // For the two files; empty: nothing is kept.
        std::string
            virtualPort;  // The name of an input and of an output for other programs to connect to; empty: none.
        bool keepsSwitches = true;  // Whether the next run remembers which ports were switched on and off.
        bool isRecording = false;   // Whether the recorder takes what is played to it even when it is switched off.
    };

    static constexpr std::chrono::milliseconds OPEN_LIMIT{1000};
    static constexpr std::chrono::milliseconds CLOSE_LIMIT{2000};

    // The sink takes what comes in, on the system's threads, until stopListening() or close() has returned.
    MidiPorts(std::shared_ptr<MidiSystem> system, Options options, InputTranslator::Sink sink);

    // Closes the ports.
    ~MidiPorts();
    MidiPorts(const MidiPorts&) = delete;
    MidiPorts& operator=(const MidiPorts&) = delete;

    // [one thread at a time] Looks up the system's current ports, opens and closes lines, and writes the files if their
    // contents changed. True if a list has changed.
    bool update();

    // [any] Called after each update() that changed a list, on its thread. Set it before the first update().
    void setListener(std::function<void()> listChanged) { m_listChanged = std::move(listChanged); }

    // [any] Copies of the lists.
    std::vector<PortRow> inputs() const;
    std::vector<PortRow> outputs() const;

    // [any] The same, in the form the desk takes.
    std::vector<Backend::MidiEngine::MidiInputPort> inputPorts() const;
    std::vector<Backend::MidiEngine::MidiOutputPort> outputPorts() const;

    // [any] By index from 0; does nothing without such a port. Ports are opened and closed later, on threads of their
    // own; the files follow with the next update().
    void enableInput(int input, bool enable);
    void enableOutput(int output, bool enable);
    void setInputSettings(int input, const PortSettings& settings);

    // [any] The input whose timing messages drive the clock; a negative index changes nothing.
    void setClockInput(int input);

    // [player, rt] Sends a short message to an output by its index from 0. False if there is no such output, it is not
    // open, or the event was dropped.
    bool play(int output, std::uint32_t bytes, std::int64_t microseconds);

    // [any, rt] Asks for all sounding notes on all outputs to be ended.
    void endNotes();

    // [player, rt] The timing messages of the clock input.
    ClockInput& clockInput() { return *m_clock; }

    Recorder& recorder() { return *m_recorder; }

    // [any] The recorder's id among the outputs.
    static MidiPortId recorderId() { return {Recorder::NAME, PortList::BUILT_IN}; }

    // [any] Whether all lines have finished what they were asked to do, such as opening their ports.
    bool isIdle() const;

    // [any but player] Waits for that, for at most this long because ports may hang. False if the time ran out.
    bool waitUntilIdle(std::chrono::milliseconds limit = OPEN_LIMIT) const;

    // [any] The ports that should be open but could not be opened, or failed; each is listed once until it is open
    // again: "MIDI output "Synth"".
    std::vector<std::string> takeFailures();

    // [any] How many events were dropped because outputs were too slow.
    std::uint64_t droppedEvents() const;

    // [any] Once this has returned, nothing more reaches the sink and the clock, not even the ends of held notes. The
    // sink must still take what is on its way.
    void stopListening();

    // [any] Ends all sounding notes, closes all ports and writes the files. A port that hangs is abandoned after the
    // limit; false if there was one. Ports stay closed.
    bool close(std::chrono::milliseconds limit = CLOSE_LIMIT);

private:
    struct Input {
        std::shared_ptr<InputTranslator> translator;
        std::unique_ptr<PortLine> line;
        MidiPortId opened;
        bool isFailureTold = false;
    };
    struct Output {
        std::unique_ptr<PortLine> line;
        MidiPortId opened;
        bool isFailureTold = false;
    };

    MidiPortIds present();
    void applyInput(std::size_t index);
    void applyOutput(std::size_t index);

    // Does nothing and returns false if there is no such row.
    bool switchRow(PortList& list, std::size_t index, bool enable) const;
    void applyAll();
    PortLine::Opener inputOpener(const MidiPortId& id, std::shared_ptr<InputTranslator> translator) const;
    PortLine::Opener outputOpener(const MidiPortId& id) const;
    void save();

    const std::shared_ptr<MidiSystem> m_system;
    const Options m_options;
    const InputTranslator::Sink m_sink;
    const std::shared_ptr<ClockInput> m_clock = std::make_shared<ClockInput>();
    const std::shared_ptr<Recorder> m_recorder = std::make_shared<Recorder>();
    std::function<void()> m_listChanged;

    mutable std::mutex m_mutex;  // Guards what follows; never held during calls to the system or a disk.
    PortList m_inputList;
    PortList m_outputList;
    std::vector<Input> m_inputs;    // By row.
    std::vector<Output> m_outputs;  // By row.
    bool m_isClosed = false;

    std::mutex m_saving;  // One writer of the files at a time.
    std::string m_savedInputs;
    std::string m_savedOutputs;

    // What the player sees of m_outputs. A line stays until the end.
    std::array<std::atomic<PortLine*>, PortList::MAX_ROWS> m_playing{};
};

}
