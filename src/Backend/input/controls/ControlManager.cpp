#include "Backend/input/controls/ControlManager.h"

#include "Backend/core/GuiPost.h"
#include "Backend/core/MirelIF.h"
#include "Backend/core/files/DefaultXml.h"
#include "Backend/core/xml/XmlDocument.h"
#include "Backend/core/xml/XmlElement.h"
#include "Backend/functions/values/RelativeFixedValue.h"
#include "Backend/functions/values/SelectControlType.h"
#include "Backend/input/controls/ControlMessages.h"
#include "Backend/midi/engine/MidiEngineMessageManager.h"

#include <algorithm>

namespace Backend::Controls {

using MidiEngine::MidiMessage;
using MidiEngine::MirelMidiMessage;

namespace {

constexpr int GRID_SIZE = 16;
constexpr std::int32_t LOWEST_VALUE = 0;
constexpr std::int32_t HIGHEST_VALUE = 127;

// Ranges may be as wide as 32 bits, so moving a value stops there.
std::int32_t to32Bits(std::int64_t value) {
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, INT32_MIN, INT32_MAX));
}

}

ControlManager::ControlManager(MirelIF& mirel, MessageManagerMaster& master)
    : m_mirel(mirel), m_presets(PRESET_FOLDER), m_messageManager(master, *this) {}

void ControlManager::loadDefaultControls() {
    const XmlDocument document(DEFAULT_CONTROLS_XML, false);
    readXml(document.getRootElement());
}

void ControlManager::readXml(const XmlElement& element) {
    m_controls.readXml(element);
    sendAll(true);
    postToGui(m_mirel, WindowMessages::ALL_CONTROLS_CHANGED, m_controls);
}

void ControlManager::writeXml(std::ostream& stream, int indent, const std::vector<Cell>& selected) const {
    m_controls.writeXml(stream, indent, selected);
}

void ControlManager::clear() {
    m_controls.clear();
    postToGui(m_mirel, WindowMessages::ALL_CONTROLS_CHANGED, m_controls);
}

void ControlManager::loadPreset(const std::string& name) {
    m_presets.load(name, [this](const XmlElement& element) { readXml(element); });
}

void ControlManager::savePreset(const std::string& name, const std::vector<Cell>& selected) {
    m_presets.save(name, [&](std::ostream& stream) { writeXml(stream, 0, selected); });
    sendPresetNames();
}

void ControlManager::renamePreset(const std::string& oldName, const std::string& newName) {
    m_presets.renamePreset(oldName, newName);
    sendPresetNames();
}

void ControlManager::deletePreset(const std::string& name) {
    m_presets.deletePreset(name);
    sendPresetNames();
}

void ControlManager::sendPresetNames() {
    postToGui(m_mirel, WindowMessages::PRESET_NAMES_CHANGED, m_presets.getNames());
}

void ControlManager::updateControls(const std::vector<Control>& controls, bool notifyGui, bool guiFlag) {
    for (const Control& control : controls) {
        if (control.type.getKind() == ControlType::NONE)
            m_controls.remove(control.cell);
        else
            m_controls.set(control);
    }
    if (notifyGui)
        postToGui(m_mirel, WindowMessages::CONTROLS_CHANGED, UpdateFlags{notifyGui, guiFlag}, controls);
}

void ControlManager::selectControls(const std::vector<Cell>& cells) {
    for (Control* control : m_controls.inOrder())
        control->selected = std::find(cells.begin(), cells.end(), control->cell) != cells.end();
    m_groupOvershoot = 0;
}

void ControlManager::changeControl(const ControlChange& change) {
    if (Control* control = m_controls.find(change.cell))
        changeControl(*control, change.value, change.updateGui, true);
}

void ControlManager::changeControl(Control& control, std::int32_t value, bool updateGui, bool send) {
    const std::int64_t delta = static_cast<std::int64_t>(value) - control.value;
    const ControlEvent* event = control.getFirstEvent();
    const BankStep step = getBankStep(event);
    if (!send || step == BankStep::NONE) {
        storeValue(control, value, updateGui, send);
    } else {
        for (const BankStep each : {BankStep::BANK_MSB, BankStep::BANK_LSB, BankStep::PROGRAM}) {
            if (each == step)
                storeValue(control, value, updateGui, send);
            else
                sendBankStep(each, *event);
        }
    }
    if (control.selected)
        moveGroup(control, delta, value);
}

ControlManager::BankStep ControlManager::getBankStep(const ControlEvent* event) {
    if (!event)
        return BankStep::NONE;
    const MidiMessage& message = event->midiMessage;
    if (message.isProgramChange())
        return BankStep::PROGRAM;
    if (!message.isControllerChange())
        return BankStep::NONE;
    if (message.getD1() == MidiMessage::BANK_MSB)
        return BankStep::BANK_MSB;
    return message.getD1() == MidiMessage::BANK_LSB ? BankStep::BANK_LSB : BankStep::NONE;
}

void ControlManager::sendBankStep(BankStep step, const ControlEvent& routing) {
    for (const Control* control : m_controls.inOrder()) {
        const ControlEvent* event = control->getFirstEvent();
        if (getBankStep(event) == step && event->hasSameRouting(routing))
            control->sendEvents(m_mirel.getMidiEngineMessageManager());
    }
}

void ControlManager::storeValue(Control& control, std::int32_t value, bool updateGui, bool send) {
    control.setValue(m_mirel.getMidiEngineMessageManager(), value, send);
    if (updateGui)
        tellValue(control);
}

void ControlManager::tellValue(const Control& control) {
    postToGui(m_mirel, WindowMessages::VALUE_CHANGED, control.cell, control.value);
}

// The others keep their distance to the source and stop at the ends. Beyond that point only the source moves; the
// overshoot records where they rejoin it.
void ControlManager::moveGroup(const Control& source, std::int64_t delta, std::int64_t value) {
    if (delta == 0)
        return;
    if (m_groupOvershoot < 0) {
        if (delta < 0 || value <= -std::int64_t{m_groupOvershoot})
            return;
        delta = m_groupOvershoot + value;
        m_groupOvershoot = 0;
    } else if (m_groupOvershoot > 0) {
        if (delta > 0 || value >= m_groupOvershoot)
            return;
        delta = value - m_groupOvershoot;
        m_groupOvershoot = 0;
    }
    std::vector<Control*> others;
    std::int64_t lowest = HIGHEST_VALUE;
    std::int64_t highest = LOWEST_VALUE;
    for (Control* control : m_controls.inOrder()) {
        if (!control->selected || control == &source)
            continue;
        others.push_back(control);
        lowest = std::min<std::int64_t>(lowest, control->value);
        highest = std::max<std::int64_t>(highest, control->value);
    }
    if (delta < 0 && lowest + delta < LOWEST_VALUE) {
        m_groupOvershoot = static_cast<std::int32_t>(lowest - value + delta);
        delta = -lowest;
    }
    if (delta > 0 && highest + delta > HIGHEST_VALUE) {
        m_groupOvershoot = static_cast<std::int32_t>(value - highest - delta + HIGHEST_VALUE);
        delta = HIGHEST_VALUE - highest;
    }
    if (delta == 0)
        return;
    for (Control* control : others)
        storeValue(*control, to32Bits(control->value + delta), true, true);
}

void ControlManager::sendAll(bool autoSendOnly) {
    for (const Control* control : m_controls.inOrder())
        if (control->autoSend || !autoSendOnly)
            control->sendEvents(m_mirel.getMidiEngineMessageManager());
}

void ControlManager::updateControls(const MirelMidiMessage& message) {
    constexpr std::int32_t D2_WEIGHT = 128;
    const auto d1 = static_cast<unsigned char>(message.getD1());
    const auto d2 = static_cast<unsigned char>(message.getD2());
    const std::int32_t value = message.isControllerChange() ? d2 : message.isPitchBend() ? d1 + d2 * D2_WEIGHT : d1;
    for (Control* control : m_controls.inOrder())
        if (follows(*control, message))
            changeControl(*control, value, true, false);
}

// A control that moved with its group does not follow the leading control's event.
bool ControlManager::follows(const Control& control, const MirelMidiMessage& message) {
    if (control.cell == message.getFromControl())
        return false;
    const Control* sender = m_controls.find(message.getFromControl());
    if (sender && sender->selected && control.selected)
        return false;
    const ControlEvent* event = control.getFirstEvent();
    return event && event->matches(message);
}

void ControlManager::selectControl(const SelectControlType& type) {
    if (type.getMode() == SelectControlType::SELECTED || type.getMode() == SelectControlType::ALL)
        return;
    Control* current = findSelected();
    Control* target = type.getMode() == SelectControlType::SPECIFIC ? m_controls.find(type.getCell())
                                                                    : findNext(type.getMode(), current);
    if (current)
        select(*current, false);
    if (target)
        select(*target, true);
}

Control* ControlManager::findNext(SelectControlType::Mode mode, const Control* from) {
    const Cell start = mode == SelectControlType::DOWN ? Cell(-1, 0) : Cell(0, -1);
    const Cell& cell = from ? from->cell : start;
    // A cell far outside the grid counts like one just outside it.
    int row = std::clamp(cell.getRow(), -2, GRID_SIZE + 1);
    int column = std::clamp(cell.getColumn(), -2, GRID_SIZE + 1);
    for (;;) {
        switch (mode) {
            case SelectControlType::UP: --row; break;
            case SelectControlType::DOWN: ++row; break;
            case SelectControlType::LEFT: --column; break;
            default: ++column; break;
        }
        if (row < 0 || row >= GRID_SIZE)
            return nullptr;
        if (column < 0) {
            if (--row < 0)
                return nullptr;
            column = GRID_SIZE - 1;
        } else if (column >= GRID_SIZE) {
            if (++row >= GRID_SIZE)
                return nullptr;
            column = 0;
        }
        if (Control* control = m_controls.find(Cell(row, column)))
            return control;
    }
}

void ControlManager::select(Control& control, bool selected) {
    control.selected = selected;
    postToGui(m_mirel, WindowMessages::SELECTED_CHANGED, control.cell, selected);
}

void ControlManager::changeControlValue(const SelectControlType& type, const RelativeFixedValue& value) {
    if (Control* control = findTarget(type))
        changeControl(*control, value.applyTo(control->value), true, true);
}

void ControlManager::sendControlData(const SelectControlType& type) {
    if (type.getMode() == SelectControlType::ALL)
        sendAll(false);
    else if (const Control* control = findTarget(type))
        control->sendEvents(m_mirel.getMidiEngineMessageManager());
}

Control* ControlManager::findTarget(const SelectControlType& type) {
    return type.getMode() == SelectControlType::SPECIFIC ? m_controls.find(type.getCell()) : findSelected();
}

Control* ControlManager::findSelected() {
    for (Control* control : m_controls.inOrder())
        if (control->selected)
            return control;
    return nullptr;
}

}
