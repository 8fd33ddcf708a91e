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

// All ports of the desk: the lists of what there is and was, their files, and a line to each port that is enabled and
// there. Ports that come and go are noticed by update(), which somebody calls about once a second.
//
// Nothing but update() and close() waits for the system, so nothing but these can hang with it.
class MidiPorts {
public:
    struct Options {
        std::string dataFolder;  // Of the two files; empty: nothing is kept.
        std::string
            virtualPort;  // The name of an input and of an output for other programs to connect to; empty: none.
        bool keepsSwitches = true;  // Which ports were switched on and off is known in the next run too.
        bool isRecording = false;   // The recorder takes what is played to it however it is switched.
    };

    static constexpr std::chrono::milliseconds OPEN_LIMIT{1000};
    static constexpr std::chrono::milliseconds CLOSE_LIMIT{2000};

    // The sink takes what comes in, on threads of the system's, until stopListening() or close() has returned.
    MidiPorts(std::shared_ptr<MidiSystem> system, Options options, InputTranslator::Sink sink);

    // Closes.
    ~MidiPorts();
    MidiPorts(const MidiPorts&) = delete;
    MidiPorts& operator=(const MidiPorts&) = delete;

    // [one thread at a time] Looks at what the system has now, opens and closes ports, and writes the files if anything
    // in them has changed. True if a list has changed.
    bool update();

    // [any] Called after each update() that changed a list, on its thread. To be set before the first one.
    void setListener(std::function<void()> listChanged) { m_listChanged = std::move(listChanged); }

    // [any] Copies of the lists.
    std::vector<PortRow> inputs() const;
    std::vector<PortRow> outputs() const;

    // [any] The same as the desk takes them.
    std::vector<Backend::MidiEngine::MidiInputPort> inputPorts() const;
    std::vector<Backend::MidiEngine::MidiOutputPort> outputPorts() const;

    // [any] By index from 0; without such a port nothing happens. Ports are opened and closed later, on threads of
    // their own; the files follow with the next update().
    void enableInput(int input, bool enable);
    void enableOutput(int output, bool enable);
    void setInputSettings(int input, const PortSettings& settings);

    // [any] The input whose timing messages are to be heard; a negative one changes nothing.
    void setClockInput(int input);

    // [player, rt] A short message to an output by its index from 0. False if there is no such output, it is not open,
    // or the event was dropped.
    bool play(int output, std::uint32_t bytes, std::int64_t microseconds);

    // [any, rt] Asks for the end of all that sounds on any output.
    void endNotes();

    // [player, rt] The timing messages of the clock input.
    ClockInput& clockInput() { return *m_clock; }

    Recorder& recorder() { return *m_recorder; }

    // [any] The recorder among the outputs.
    static MidiPortId recorderId() { return {Recorder::NAME, PortList::BUILT_IN}; }

    // [any] Whether all lines have done what they were asked for, as to open their ports.
    bool isIdle() const;

    // [any but player] Waits for that, at most this long as ports may hang. False if it was not enough.
    bool waitUntilIdle(std::chrono::milliseconds limit = OPEN_LIMIT) const;

    // [any] The ports that should be open and could not be opened, or failed, each once until it is open again: "MIDI
    // output "Synth"".
    std::vector<std::string> takeFailures();

    // [any] Events that outputs were too slow for.
    std::uint64_t droppedEvents() const;

    // [any] When this has returned, the sink and the clock get nothing any more, not even the ends of notes that are
    // held. The sink must still take what is on its way.
    void stopListening();

    // [any] Ends all that sounds, closes all ports and writes the files. A port that hangs is left behind after the
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

    // False, and nothing done, without such a row.
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

    mutable std::mutex m_mutex;  // Of what follows; never held while the system or a disk is at work.
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
