#include "Host/cli/script/WindowText.h"

#include "Backend/core/WindowMessages.h"
#include "Backend/core/files/Bank.h"
#include "Backend/core/files/Program.h"
#include "Backend/core/messages/MessagePayload.h"
#include "Backend/core/messages/MessageRanges.h"
#include "Backend/functions/values/NoteToggle.h"
#include "Backend/functions/values/RelativeFixedValue.h"
#include "Backend/functions/values/SelectControlType.h"
#include "Backend/functions/values/SelectType.h"
#include "Backend/input/ComputerInputMessages.h"
#include "Backend/input/KeyConfigurationMap.h"
#include "Backend/input/controls/ControlMap.h"
#include "Backend/input/controls/ControlMessages.h"
#include "Backend/midi/MidiPort.h"
#include "Backend/midi/layers/LayerList.h"
#include "Backend/midi/layers/ZoneMap.h"
#include "Backend/midi/managers/LayerMessages.h"
#include "Backend/midi/managers/ZoneMessages.h"
#include "Host/cli/script/EventText.h"

#include <vector>

namespace Host::Cli {

using namespace Backend;
using MidiEngine::MirelMidiMessage;

namespace {

std::string onOff(bool on) {
    return on ? "on" : "off";
}

std::string quoted(const std::string& text) {
    return "\"" + text + "\"";
}

std::string toNumber(WPARAM word) {
    return std::to_string(static_cast<int>(word));
}

std::string takeProgram(LPARAM word) {
    const auto program = takePayload<Program>(word);
    return quoted(program->getName()) + " index=" + std::to_string(program->getIndex()) +
           " tempo=" + std::to_string(program->getTempo()) + " source=" + std::to_string(program->getTempoSource());
}

std::string takeBank(LPARAM word) {
    const auto bank = takePayload<Bank>(word);
    return quoted(bank->getPath()) + " programs=" + std::to_string(bank->getProgramNames().size());
}

std::string takeMove(WPARAM x, LPARAM y) {
    return "x=" + takePayload<RelativeFixedValue>(x)->toXmlString() +
           " y=" + takePayload<RelativeFixedValue>(y)->toXmlString();
}

// The elements of a list on the heap, divided by blanks.
template <class Element, class Describe>
std::string takeList(LPARAM word, Describe describe) {
    const auto elements = takePayload<std::vector<Element>>(word);
    std::string text;
    for (const Element& element : *elements)
        text += (text.empty() ? "" : " ") + describe(element);
    return text;
}

template <class Port>
std::string takePorts(LPARAM word) {
    return takeList<Port>(word, [](const Port& port) { return quoted(port.name) + "=" + onOff(port.enabled); });
}

template <class Collection>
std::string takeSize(LPARAM word, const char* what) {
    return std::to_string(takePayload<Collection>(word)->size()) + " " + what;
}

Cell cellOf(std::int64_t word) {
    constexpr int COLUMN_BITS = 16;
    return Cell(static_cast<std::int16_t>(word >> COLUMN_BITS), static_cast<std::int16_t>(word));
}

std::string takeMirelText(UINT message, WPARAM w, LPARAM l) {
    using namespace WindowMessages;
    switch (message) {
        case DEFAULT_BANK_CHANGED: return quoted(*takePayload<std::string>(l));
        case BANK_CHANGED: return takeBank(l);
        case PROGRAM_CHANGED:
        case PROGRAM_NAME_CHANGED: return takeProgram(l);
        case MOVE_WINDOW: return takeMove(w, l);
        case DISPLAY_MIDI_OUTPUT_EVENT: {
            const MirelMidiMessage event(std::uint64_t{w}, std::int64_t{l});
            return describeEvent(event, event.getChannel()) + " in=" + std::to_string(event.getInput());
        }
        case MIDI_INPUT_PORTS_CHANGED: return takePorts<MidiEngine::MidiInputPort>(l);
        case MIDI_OUTPUT_PORTS_CHANGED: return takePorts<MidiEngine::MidiOutputPort>(l);
        case DEFAULT_MIDI_OUTPUT_CHANGED:
        case MOUSE_SENSITIVITY_CHANGED: return toNumber(w);
        case DOCK_TO_BOTTOM_EDGE_CHANGED:
        case DISPLAY_NUMBERS_CHANGED:
        case LARGE_DISPLAY_FONT_CHANGED:
        case DISPLAY_MIDI_INPUT_EVENTS_CHANGED:
        case DISPLAY_MIDI_OUTPUT_EVENTS_CHANGED:
        case SHOW_SYSTEM_PANEL:
        case SHOW_HELP:
        case SHOW_DISPLAY:
        case SHOW_COMPUTER_INPUT:
        case SHOW_CONTROL:
        case SHOW_OUTPUT:
        case SHOW_CC:
        case SHOW_LAYER:
        case SHOW_ZONE:
        case ALWAYS_ON_TOP_CHANGED:
        case USE_SKIN_BORDER_CHANGED:
        case MIDI_THRU_CHANGED:
        case GLOBAL_KEYBOARD_CHANGED:
        case CLICK_ZONE_CHANNEL_TRANSPOSE_CHANGED: return onOff(w != 0);
        default: return {};
    }
}

std::string takeKeyText(UINT message, WPARAM w, LPARAM l) {
    using namespace ComputerInput;
    using namespace ComputerInput::WindowMessages;
    switch (message) {
        case KEYS_CHANGED:
            return takeList<KeyConfiguration>(
                l, [](const KeyConfiguration& key) { return quoted(key.getKey().toXmlString()); });
        case ALL_KEYS_CHANGED: return takeSize<KeyConfigurationMap>(l, "keys") + " useKeyUpMod=" + onOff(w != 0);
        default: return {};
    }
}

std::string takeControlText(UINT message, WPARAM w, LPARAM l) {
    using namespace Controls;
    using namespace Controls::WindowMessages;
    switch (message) {
        case CONTROLS_CHANGED:
            return takeList<Control>(l, [](const Control& control) { return control.cell.toXmlString(); });
        case ALL_CONTROLS_CHANGED: return takeSize<ControlMap>(l, "controls");
        case VALUE_CHANGED: return cellOf(static_cast<std::int64_t>(w)).toXmlString() + " value=" + std::to_string(l);
        case SELECTED_CHANGED: return cellOf(static_cast<std::int64_t>(w)).toXmlString() + " " + onOff(l != 0);
        case SET_FOCUS: return SelectControlType(static_cast<SelectControlType::Mode>(w), cellOf(l)).toXmlString();
        default: return {};
    }
}

std::string takeLayerText(UINT message, WPARAM w, LPARAM l) {
    using namespace Layers;
    using namespace Layers::WindowMessages;
    switch (message) {
        case LAYERS_CHANGED: return takeList<Layer>(l, [](const Layer& layer) { return std::to_string(layer.id); });
        case ALL_LAYERS_CHANGED: return takeSize<LayerList>(l, "layers");
        case EDIT_SELECT: return takePayload<SelectType>(l)->toXmlString();
        case TRANSPOSE_CHANGED:
        case VELOCITY_CHANGED: return toNumber(w) + " " + quoted(takePayload<RelativeFixedValue>(l)->toXmlString());
        case SELECTED_CHANGED:
        case MUTE_CHANGED:
        case MONO_CHANGED:
        case SOLO_CHANGED: return toNumber(w) + " " + onOff(l != 0);
        case TOGGLE_CHANGED: return toNumber(w) + " " + NoteToggle(static_cast<NoteToggle::State>(l)).toXmlString();
        default: return {};
    }
}

std::string takeZoneText(UINT message, WPARAM w, LPARAM l) {
    using namespace Zones;
    using namespace Zones::WindowMessages;
    switch (message) {
        case ZONE_CHANGED: {
            const auto zone = takePayload<Zone>(l);
            return std::to_string(zone->id) + " transpose=" + std::to_string(zone->transpose);
        }
        case ALL_ZONES_CHANGED: return takeSize<ZoneMap>(l, "zones");
        case SELECTED_CHANGED: return toNumber(w) + " " + onOff(l != 0);
        default: return {};
    }
}

}

std::string takeWindowText(UINT message, WPARAM wParam, LPARAM lParam) {
    if (MIREL_GUI_RANGE.contains(message))
        return takeMirelText(message, wParam, lParam);
    if (COMPUTER_INPUT_GUI_RANGE.contains(message))
        return takeKeyText(message, wParam, lParam);
    if (CONTROL_GUI_RANGE.contains(message))
        return takeControlText(message, wParam, lParam);
    if (LAYER_GUI_RANGE.contains(message))
        return takeLayerText(message, wParam, lParam);
    if (ZONE_GUI_RANGE.contains(message))
        return takeZoneText(message, wParam, lParam);
    return {};
}

}
