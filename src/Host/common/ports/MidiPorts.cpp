#include "Host/common/ports/MidiPorts.h"

#include "Host/common/ports/PortFiles.h"
#include "Platform/Sleep.h"

#include <algorithm>
#include <utility>

namespace Host {

using Backend::MidiEngine::MidiInputPort;
using Backend::MidiEngine::MidiOutputPort;

namespace {

// An input that, when closed, ends the notes that came through it; nobody else would.
class TranslatedInput : public OpenMidiPort {
public:
    TranslatedInput(std::unique_ptr<OpenMidiPort> port, std::shared_ptr<InputTranslator> translator)
        : m_port(std::move(port)), m_translator(std::move(translator)) {}

    ~TranslatedInput() override {
        m_port = nullptr;
        m_translator->endHeldNotes();
    }

    TranslatedInput(const TranslatedInput&) = delete;
    TranslatedInput& operator=(const TranslatedInput&) = delete;

    bool send(const std::uint8_t*, std::size_t, std::int64_t) override { return false; }

private:
    std::unique_ptr<OpenMidiPort> m_port;
    const std::shared_ptr<InputTranslator> m_translator;
};

template <class Port>
std::vector<Port> portsOf(const std::vector<PortRow>& rows) {
    std::vector<Port> ports(rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        ports[i].name = rows[i].id.name;
        if (rows[i].id.copy > 1)
            ports[i].name += " (" + std::to_string(rows[i].id.copy) + ")";
        ports[i].enabled = rows[i].settings.enabled;
        ports[i].available = rows[i].available;
    }
    return ports;
}

// Opens or closes the line to match the row. Tries again if it failed before.
template <class MakeOpener>
void apply(const PortRow& row, bool isEnabled, PortLine& line, MidiPortId& opened, MakeOpener makeOpener) {
    if (!isEnabled || !row.available) {
        if (line.isWanted())
            line.close();
    } else if (!line.isWanted() || line.hasFailed() || opened != row.id) {
        opened = row.id;
        line.open(makeOpener());
    }
}

// Adds the port if it has failed since this was last reported.
template <class Port>
void takeFailure(const char* kind, Port& port, std::vector<std::string>& failures) {
    if (!port.line->isWanted() || port.line->isOpen())
        port.isFailureTold = false;
    else if (port.line->hasFailed() && !std::exchange(port.isFailureTold, true))
        failures.push_back(std::string(kind) + " \"" + port.opened.name + "\"");
}

}

MidiPorts::MidiPorts(std::shared_ptr<MidiSystem> system, Options options, InputTranslator::Sink sink)
    : m_system(std::move(system)),
      m_options(std::move(options)),
      m_sink(std::move(sink)),
      m_inputList(readPortFile(m_options.dataFolder, INPUTS_FILE)),
      m_outputList(readPortFile(m_options.dataFolder, OUTPUTS_FILE)),
      m_savedInputs(m_inputList.toText()),
      m_savedOutputs(m_outputList.toText()) {
    // Events need somewhere to go before the first scan of the system, which may take a while.
    m_outputList.update({recorderId()});
    applyAll();
}

MidiPorts::~MidiPorts() {
    close();
}

MidiPortIds MidiPorts::present() {
    MidiPortIds ids = m_system->list();
    if (!m_options.virtualPort.empty() && m_system->hasVirtualPorts()) {
        ids.inputs.push_back({m_options.virtualPort, PortList::BUILT_IN});
        ids.outputs.push_back({m_options.virtualPort, PortList::BUILT_IN});
    }
    ids.outputs.push_back(recorderId());
    return ids;
}

bool MidiPorts::update() {
    const MidiPortIds ids = present();
    bool changed = false;
    {
        const std::lock_guard lock(m_mutex);
        if (m_isClosed)
            return false;
        const bool inputsChanged = m_inputList.update(ids.inputs);
        const bool outputsChanged = m_outputList.update(ids.outputs);
        changed = inputsChanged || outputsChanged;
        applyAll();
    }
    save();
    if (changed && m_listChanged)
        m_listChanged();
    return changed;
}

void MidiPorts::applyAll() {
    for (std::size_t i = 0; i < m_inputList.rows().size(); ++i)
        applyInput(i);
    for (std::size_t i = 0; i < m_outputList.rows().size(); ++i)
        applyOutput(i);
}

void MidiPorts::applyInput(std::size_t index) {
    while (m_inputs.size() <= index) {
        const std::size_t next = m_inputs.size();
        m_inputs.push_back({std::make_shared<InputTranslator>(static_cast<char>(next), m_sink, m_clock),
                            std::make_unique<PortLine>("midi in " + std::to_string(next + 1)),
                            {},
                            false});
    }
    Input& input = m_inputs[index];
    const PortRow& row = m_inputList.rows()[index];
    input.translator->setSettings(row.settings);
    apply(row, row.settings.enabled, *input.line, input.opened, [&] { return inputOpener(row.id, input.translator); });
}

void MidiPorts::applyOutput(std::size_t index) {
    while (m_outputs.size() <= index) {
        const std::size_t next = m_outputs.size();
        m_outputs.push_back({std::make_unique<PortLine>("midi out " + std::to_string(next + 1)), {}, false});
        m_playing[next] = m_outputs.back().line.get();
    }
    Output& output = m_outputs[index];
    const PortRow& row = m_outputList.rows()[index];
    const bool isEnabled = row.settings.enabled || (m_options.isRecording && row.id == recorderId());
    apply(row, isEnabled, *output.line, output.opened, [&] { return outputOpener(row.id); });
}

PortLine::Opener MidiPorts::inputOpener(const MidiPortId& id, std::shared_ptr<InputTranslator> translator) const {
    return [system = m_system, id, translator = std::move(translator)]() -> std::unique_ptr<OpenMidiPort> {
        const auto receive = [translator](const std::uint8_t* bytes, std::size_t count, std::int64_t microseconds) {
            translator->receive(bytes, count, microseconds);
        };
        auto port =
            id.copy == PortList::BUILT_IN ? system->openVirtualInput(id.name, receive) : system->openInput(id, receive);
        if (!port)
            return nullptr;
        return std::make_unique<TranslatedInput>(std::move(port), translator);
    };
}

PortLine::Opener MidiPorts::outputOpener(const MidiPortId& id) const {
    if (id == recorderId())
        return [recorder = m_recorder] { return openRecorder(recorder); };
    return [system = m_system, id] {
        return id.copy == PortList::BUILT_IN ? system->openVirtualOutput(id.name) : system->openOutput(id);
    };
}

std::vector<std::string> MidiPorts::takeFailures() {
    std::vector<std::string> failures;
    const std::lock_guard lock(m_mutex);
    for (Input& input : m_inputs)
        takeFailure("MIDI input", input, failures);
    for (Output& output : m_outputs)
        takeFailure("MIDI output", output, failures);
    return failures;
}

void MidiPorts::save() {
    std::string inputText;
    std::string outputText;
    {
        const std::lock_guard lock(m_mutex);
        inputText = m_inputList.toText();
        outputText = m_outputList.toText();
    }
    const std::lock_guard lock(m_saving);
    if (inputText != m_savedInputs && writePortFile(m_options.dataFolder, INPUTS_FILE, inputText))
        m_savedInputs = std::move(inputText);
    if (outputText != m_savedOutputs && writePortFile(m_options.dataFolder, OUTPUTS_FILE, outputText))
        m_savedOutputs = std::move(outputText);
}

std::vector<PortRow> MidiPorts::inputs() const {
    const std::lock_guard lock(m_mutex);
    return m_inputList.rows();
}

std::vector<PortRow> MidiPorts::outputs() const {
    const std::lock_guard lock(m_mutex);
    return m_outputList.rows();
}

std::vector<MidiInputPort> MidiPorts::inputPorts() const {
    return portsOf<MidiInputPort>(inputs());
}

std::vector<MidiOutputPort> MidiPorts::outputPorts() const {
    return portsOf<MidiOutputPort>(outputs());
}

bool MidiPorts::switchRow(PortList& list, std::size_t index, bool enable) const {
    if (!m_options.keepsSwitches)
        return list.switchForNow(index, enable);
    if (index >= list.rows().size())
        return false;
    PortSettings settings = list.rows()[index].settings;
    settings.enabled = enable;
    return list.setSettings(index, settings);
}

void MidiPorts::enableInput(int input, bool enable) {
    const std::lock_guard lock(m_mutex);
    const auto index = static_cast<std::size_t>(input);
    if (!m_isClosed && input >= 0 && switchRow(m_inputList, index, enable))
        applyInput(index);
}

void MidiPorts::enableOutput(int output, bool enable) {
    const std::lock_guard lock(m_mutex);
    const auto index = static_cast<std::size_t>(output);
    if (!m_isClosed && output >= 0 && switchRow(m_outputList, index, enable))
        applyOutput(index);
}

void MidiPorts::setInputSettings(int input, const PortSettings& settings) {
    const std::lock_guard lock(m_mutex);
    if (m_isClosed || input < 0 || !m_inputList.setSettings(static_cast<std::size_t>(input), settings))
        return;
    applyInput(static_cast<std::size_t>(input));
}

void MidiPorts::setClockInput(int input) {
    if (input >= 0)
        m_clock->listenTo(input);
}

bool MidiPorts::play(int output, std::uint32_t bytes, std::int64_t microseconds) {
    if (output < 0 || static_cast<std::size_t>(output) >= m_playing.size())
        return false;
    PortLine* line = m_playing[static_cast<std::size_t>(output)].load(std::memory_order_acquire);
    return line && line->play(bytes, microseconds);
}

void MidiPorts::endNotes() {
    for (const auto& playing : m_playing)
        if (PortLine* line = playing.load(std::memory_order_acquire))
            line->endNotes();
}

bool MidiPorts::isIdle() const {
    const std::lock_guard lock(m_mutex);
    return std::all_of(m_inputs.begin(), m_inputs.end(), [](const Input& input) { return input.line->isIdle(); }) &&
           std::all_of(m_outputs.begin(), m_outputs.end(), [](const Output& output) { return output.line->isIdle(); });
}

std::uint64_t MidiPorts::droppedEvents() const {
    const std::lock_guard lock(m_mutex);
    std::uint64_t dropped = 0;
    for (const Output& output : m_outputs)
        dropped += output.line->dropped();
    return dropped;
}

bool MidiPorts::waitUntilIdle(std::chrono::milliseconds limit) const {
    const auto deadline = std::chrono::steady_clock::now() + limit;
    while (!isIdle()) {
        if (std::chrono::steady_clock::now() >= deadline)
            return false;
        Platform::sleepMilliseconds(1);
    }
    return true;
}

void MidiPorts::stopListening() {
    std::vector<std::shared_ptr<InputTranslator>> translators;
    {
        const std::lock_guard lock(m_mutex);
        for (const Input& input : m_inputs)
            translators.push_back(input.translator);
    }
    for (const auto& translator : translators)
        translator->close();
}

bool MidiPorts::close(std::chrono::milliseconds limit) {
    {
        const std::lock_guard lock(m_mutex);
        if (std::exchange(m_isClosed, true))
            return true;
    }
    m_system->beginClose();
    // From here on nobody else changes the lines.
    for (Input& input : m_inputs)
        input.line->finish();
    for (Output& output : m_outputs)
        output.line->finish();
    const auto deadline = std::chrono::steady_clock::now() + limit;
    bool allEnded = true;
    for (Input& input : m_inputs) {
        allEnded = input.line->waitUntilFinished(deadline) && allEnded;
        input.translator->close();
    }
    for (Output& output : m_outputs)
        allEnded = output.line->waitUntilFinished(deadline) && allEnded;
    save();
    return allEnded;
}

}
