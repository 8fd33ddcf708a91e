// Settings and ports of the desk.
#include "Backend/core/GuiPost.h"
#include "Backend/core/Mirel.h"
#include "Backend/core/WindowMessages.h"
#include "Backend/core/installation/MirelUtils.h"
#include "Backend/functions/values/OnOffToggle.h"
#include "Backend/functions/values/RelativeFixedValue.h"
#include "Backend/functions/values/SelectType.h"

#include <algorithm>
#include <array>

namespace Backend {

using namespace WindowMessages;
using MidiEngine::MidiInputPort;
using MidiEngine::MidiOutputPort;

namespace {

constexpr int NONE = -1;

// The synthesizers that come with the system.
constexpr std::array SYSTEM_SYNTHESIZERS = {"Microsoft GS Wavetable Synth", "Microsoft GS Wavetable SW Synth"};

template <class Port>
bool isPort(const std::vector<Port>& ports, int index) {
    return index >= 0 && static_cast<std::size_t>(index) < ports.size();
}

template <class Condition>
int findPort(const std::vector<MidiOutputPort>& ports, Condition condition) {
    const auto found = std::find_if(ports.begin(), ports.end(), condition);
    return found == ports.end() ? NONE : static_cast<int>(found - ports.begin());
}

}

std::string Mirel::getSettingsKey() const {
    return MirelUtils::getRegistryKey(m_name);
}

void Mirel::setLastWindowPosition(const Rect& position) {
    m_registrySettings.setLastWindowPosition(position);
}

void Mirel::setDockToBottomEdge(bool dock) {
    m_registrySettings.setDockToBottomEdge(dock);
    postToGui(*this, DOCK_TO_BOTTOM_EDGE_CHANGED, dock);
}

void Mirel::setMouseSensitivity(int sensitivity) {
    m_registrySettings.setMouseSensitivity(sensitivity);
    postToGui(*this, MOUSE_SENSITIVITY_CHANGED, sensitivity);
}

void Mirel::setAlwaysOnTop(bool alwaysOnTop) {
    m_registrySettings.setAlwaysOnTop(alwaysOnTop);
    postToGui(*this, ALWAYS_ON_TOP_CHANGED, alwaysOnTop);
}

void Mirel::setUseSkinBorder(bool useSkinBorder) {
    m_registrySettings.setUseSkinBorder(useSkinBorder);
    postToGui(*this, USE_SKIN_BORDER_CHANGED, useSkinBorder);
}

void Mirel::setDisplayHeight(int height) {
    m_registrySettings.setDisplayHeight(height);
}

void Mirel::setDisplayNumbers(bool numbers) {
    m_registrySettings.setDisplayNumbers(numbers);
    postToGui(*this, DISPLAY_NUMBERS_CHANGED, numbers);
    m_display.postSetDisplayNumbers(numbers);
}

void Mirel::setLargeDisplayFont(bool large) {
    m_registrySettings.setLargeDisplayFont(large);
    postToGui(*this, LARGE_DISPLAY_FONT_CHANGED, large);
}

void Mirel::setDisplayMidiInputEvents(bool display) {
    m_registrySettings.setDisplayMidiInputEvents(display);
    postToGui(*this, DISPLAY_MIDI_INPUT_EVENTS_CHANGED, display);
    m_display.postSetDisplayInputs(display);
}

void Mirel::setDisplayMidiOutputEvents(bool display) {
    m_registrySettings.setDisplayMidiOutputEvents(display);
    postToGui(*this, DISPLAY_MIDI_OUTPUT_EVENTS_CHANGED, display);
    m_display.postSetDisplayOutputs(display);
}

void Mirel::setClickZoneChannelTranspose(bool value) {
    m_registrySettings.setClickZoneChannelTranspose(value);
    postToGui(*this, CLICK_ZONE_CHANNEL_TRANSPOSE_CHANGED, value);
}

void Mirel::setLiteVelocity(int velocity) {
    m_registrySettings.setLiteVelocity(velocity);
    m_layers.setFirstVelocity(velocity);
}

void Mirel::setLiteChannel(int channel) {
    m_registrySettings.setLiteChannel(channel);
    m_layers.setFirstChannel(channel);
}

void Mirel::setLiteStackNotes(bool stackNotes) {
    m_registrySettings.setLiteStackNotes(stackNotes);
    m_layers.setFirstUseNoteStack(stackNotes);
}

void Mirel::changeMidiThru(const OnOffToggle& state, bool notifyGui) {
    const bool midiThru = state.applyTo(m_registrySettings.getMidiThru());
    m_registrySettings.setMidiThru(midiThru);
    m_midiEngine.getMessageManager().postSetMidiThru(midiThru);
    if (notifyGui)
        postToGui(*this, MIDI_THRU_CHANGED, midiThru);
}

void Mirel::changeGlobalKeyboard(const OnOffToggle& state, bool notifyGui) {
    const bool globalKeyboard = state.applyTo(m_registrySettings.getGlobalKeyboard());
    m_registrySettings.setGlobalKeyboard(globalKeyboard);
    if (notifyGui)
        postToGui(*this, GLOBAL_KEYBOARD_CHANGED, globalKeyboard);
}

void Mirel::changeTempo(const RelativeFixedValue& value, bool notifyGui) {
    const int tempo = value.applyTo(m_currentProgram.getTempo());
    if (!Program::TEMPO.contains(tempo))
        return;
    m_currentProgram.setTempo(tempo);
    m_midiEngine.getMessageManager().postSetTempo(tempo);
    if (notifyGui)
        postToGui(*this, PROGRAM_CHANGED, m_currentProgram);
}

void Mirel::setTempoSource(char source, bool notifyGui) {
    if (source != NONE && !isPort(m_midiInputPorts, source))
        return;
    m_currentProgram.setTempoSource(source);
    m_midiEngine.getMessageManager().postSetTempoSource(source);
    if (notifyGui)
        postToGui(*this, PROGRAM_CHANGED, m_currentProgram);
}

void Mirel::setMidiInputPorts(const std::vector<MidiInputPort>& ports) {
    m_midiInputPorts = ports;
    m_midiEngine.getMessageManager().postSetMidiInputPorts(ports);
    m_display.postSetInputPorts(ports);
    postToGui(*this, MIDI_INPUT_PORTS_CHANGED, ports);
}

void Mirel::setMidiOutputPorts(const std::vector<MidiOutputPort>& ports) {
    m_midiOutputPorts = ports;
    chooseDefaultMidiOutput();
    m_midiEngine.getMessageManager().postSetMidiOutputPorts(ports);
    m_display.postSetOutputPorts(ports);
    postToGui(*this, MIDI_OUTPUT_PORTS_CHANGED, ports);
}

void Mirel::chooseDefaultMidiOutput() {
    int chosen = m_registrySettings.getDefaultMidiOutput();
    const auto chooseFirst = [&](const auto& suits) {
        const int first = chosen < 0 ? findPort(m_midiOutputPorts, suits) : NONE;
        chosen = first == NONE ? chosen : first;
    };
    chooseFirst([](const MidiOutputPort& port) {
        return std::find(SYSTEM_SYNTHESIZERS.begin(), SYSTEM_SYNTHESIZERS.end(), port.name) !=
               SYSTEM_SYNTHESIZERS.end();
    });
    if (isPort(m_midiOutputPorts, chosen) && !m_midiOutputPorts[static_cast<std::size_t>(chosen)].enabled)
        chosen = NONE;
    chooseFirst([](const MidiOutputPort& port) { return port.enabled; });
    if (chosen != m_registrySettings.getDefaultMidiOutput())
        setDefaultMidiOutput(chosen);
}

void Mirel::setDefaultMidiOutput(int index) {
    m_registrySettings.setDefaultMidiOutput(index);
    m_midiEngine.getMessageManager().postSetDefaultMidiOutput(index);
    postToGui(*this, DEFAULT_MIDI_OUTPUT_CHANGED, index);
}

void Mirel::changeDefaultMidiOutput(const SelectType& type) {
    const auto isUsable = [this](std::int64_t index) {
        return index >= 0 && index < static_cast<std::int64_t>(m_midiOutputPorts.size()) &&
               m_midiOutputPorts[static_cast<std::size_t>(index)].enabled &&
               m_midiOutputPorts[static_cast<std::size_t>(index)].available;
    };
    const auto count = static_cast<std::int64_t>(m_midiOutputPorts.size());
    std::int64_t index = type.getValue();
    if (type.getMode() == SelectType::UP || type.getMode() == SelectType::DOWN) {
        const int step = type.getMode() == SelectType::UP ? 1 : -1;
        index = std::clamp<std::int64_t>(m_registrySettings.getDefaultMidiOutput(), -1, count) + step;
        while (index >= 0 && index < count && !isUsable(index))
            index += step;
    }
    if (isUsable(index))
        setDefaultMidiOutput(static_cast<int>(index));
}

void Mirel::processMidiInputEvent(const MidiEngine::MirelMidiMessage& message) {
    const char input = message.getInput();
    if (isPort(m_midiInputPorts, input) && m_midiInputPorts[static_cast<unsigned char>(input)].enabled)
        m_display.postAddInputEvent(message);
}

void Mirel::enableMidiInput(int index, bool enabled) {
    if (!isPort(m_midiInputPorts, index))
        return;
    m_midiInputPorts[static_cast<std::size_t>(index)].enabled = enabled;
    m_registrySettings.setMidiInputEnabled(index, enabled);
    m_midiEngine.getMessageManager().postEnableMidiInput(index, enabled);
    postToGui(*this, MIDI_INPUT_PORTS_CHANGED, m_midiInputPorts);
}

// The list of ports stays as it is: the host answers with a new one.
void Mirel::enableMidiOutput(int index, bool enabled) {
    m_registrySettings.setMidiOutputEnabled(index, enabled);
    m_midiEngine.getMessageManager().postEnableMidiOutput(index, enabled);
}

}
