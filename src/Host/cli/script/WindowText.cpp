#include "Host/cli/script/WindowText.h"

#include "Backend/core/WindowMessages.h"
#include "Backend/core/files/Bank.h"
#include "Backend/core/files/Program.h"
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
using ComputerInput::KeyConfiguration;
using ComputerInput::KeyConfigurationMap;
using Controls::Control;
using Controls::ControlMap;
using Controls::UpdateFlags;
using Layers::Layer;
using Layers::LayerList;
using MidiEngine::MirelMidiMessage;
using Zones::Zone;
using Zones::ZoneId;
using Zones::ZoneMap;

namespace {

std::string onOff(bool on) {
    return on ? "on" : "off";
}

std::string quoted(const std::string& text) {
    return "\"" + text + "\"";
}

// The elements of a list, separated by blanks.
template <class Element, class Describe>
std::string describeList(const std::vector<Element>& elements, Describe describe) {
    std::string text;
    for (const Element& element : elements)
        text += (text.empty() ? "" : " ") + describe(element);
    return text;
}

template <class Port>
std::string describePorts(const std::vector<Port>& ports) {
    return describeList(ports, [](const Port& port) { return quoted(port.name) + "=" + onOff(port.enabled); });
}

// Describes what a message carries, by the types of its row.

std::string describe() {
    return {};
}

std::string describe(bool on) {
    return onOff(on);
}

std::string describe(int number) {
    return std::to_string(number);
}

std::string describe(const std::string& text) {
    return quoted(text);
}

std::string describe(const Bank& bank) {
    return quoted(bank.getPath()) + " programs=" + std::to_string(bank.getProgramNames().size());
}

std::string describe(const Program& program) {
    return quoted(program.getName()) + " index=" + std::to_string(program.getIndex()) +
           " tempo=" + std::to_string(program.getTempo()) + " source=" + std::to_string(program.getTempoSource());
}

std::string describe(const RelativeFixedValue& x, const RelativeFixedValue& y) {
    return "x=" + x.toXmlString() + " y=" + y.toXmlString();
}

std::string describe(const MirelMidiMessage& event) {
    return describeEvent(event, event.getChannel()) + " in=" + std::to_string(event.getInput());
}

std::string describe(const std::vector<MidiEngine::MidiInputPort>& ports) {
    return describePorts(ports);
}

std::string describe(const std::vector<MidiEngine::MidiOutputPort>& ports) {
    return describePorts(ports);
}

std::string describe(const std::vector<KeyConfiguration>& keys) {
    return describeList(keys, [](const KeyConfiguration& key) { return quoted(key.getKey().toXmlString()); });
}

std::string describe(bool useKeyUpMod, const KeyConfigurationMap& keys) {
    return std::to_string(keys.size()) + " keys useKeyUpMod=" + onOff(useKeyUpMod);
}

std::string describe(const UpdateFlags&, const std::vector<Control>& controls) {
    return describeList(controls, [](const Control& control) { return control.cell.toXmlString(); });
}

std::string describe(const ControlMap& controls) {
    return std::to_string(controls.size()) + " controls";
}

std::string describe(const Cell& cell, int value) {
    return cell.toXmlString() + " value=" + std::to_string(value);
}

std::string describe(const Cell& cell, bool selected) {
    return cell.toXmlString() + " " + onOff(selected);
}

std::string describe(SelectControlType::Mode mode, const Cell& cell) {
    return SelectControlType(mode, cell).toXmlString();
}

std::string describe(const std::vector<Layer>& layers) {
    return describeList(layers, [](const Layer& layer) { return std::to_string(layer.id); });
}

std::string describe(const std::vector<std::string>& names) {
    return describeList(names, quoted);
}

std::string describe(const LayerList& layers) {
    return std::to_string(layers.size()) + " layers";
}

std::string describe(const SelectType& type) {
    return type.toXmlString();
}

std::string describe(int layer, const RelativeFixedValue& value) {
    return std::to_string(layer) + " " + quoted(value.toXmlString());
}

std::string describe(int layer, bool on) {
    return std::to_string(layer) + " " + onOff(on);
}

std::string describe(int layer, const NoteToggle& toggle) {
    return std::to_string(layer) + " " + toggle.toXmlString();
}

std::string describe(const Zone& zone) {
    return std::to_string(zone.id) + " transpose=" + std::to_string(zone.transpose);
}

std::string describe(const ZoneMap& zones) {
    return std::to_string(zones.size()) + " zones";
}

std::string describe(ZoneId zone, bool selected) {
    return std::to_string(zone) + " " + onOff(selected);
}

}

std::string takeWindowText(UINT message, WPARAM wParam, LPARAM lParam) {
    std::string text;
    const auto take = [&](const auto& family) {
        return family.open(message, wParam, lParam, [&text](const auto&... values) { text = describe(values...); });
    };
    static_cast<void>(take(WindowMessages::FAMILY) || take(ComputerInput::WindowMessages::FAMILY) ||
                      take(Controls::WindowMessages::FAMILY) || take(Layers::WindowMessages::FAMILY) ||
                      take(Zones::WindowMessages::FAMILY));
    return text;
}

bool isListForMenus(UINT message) {
    return message == ComputerInput::WindowMessages::PRESET_NAMES_CHANGED.NUMBER ||
           message == Controls::WindowMessages::PRESET_NAMES_CHANGED.NUMBER ||
           message == Layers::WindowMessages::PRESET_NAMES_CHANGED.NUMBER;
}

}
