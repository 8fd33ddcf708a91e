#pragma once

#include "Backend/core/files/PresetFolder.h"
#include "Backend/functions/values/SelectControlType.h"
#include "Backend/input/controls/ControlMap.h"
#include "Backend/input/controls/ControlMessageManager.h"

#include <ostream>
#include <string>
#include <vector>

class RelativeFixedValue;

namespace Backend {
class MessageManagerMaster;
class MirelIF;
class XmlElement;
}

namespace Backend::Controls {

// The controls of the current program. [backend]
class ControlManager {
public:
    // The folder of its preset files below the one for the desk's data.
    static constexpr const char* PRESET_FOLDER = "Control Presets";

    ControlManager(MirelIF& mirel, MessageManagerMaster& master);

    ControlManager(const ControlManager&) = delete;
    ControlManager& operator=(const ControlManager&) = delete;

    ControlMessageManager& getMessageManager() { return m_messageManager; }
    const ControlMap& getControlMap() const { return m_controls; }
    const PresetFolder& getPresets() const { return m_presets; }

    // How far the control that leads a group is beyond the place where the group stopped at an end.
    std::int32_t getGroupOvershoot() const { return m_groupOvershoot; }

    // The built-in controls.
    void loadDefaultControls();

    // From a Controls element. Controls that send on their own do so.
    void readXml(const XmlElement& element);

    // As a Controls element, indent tabs deep: all controls, or the selected ones to be merged.
    void writeXml(std::ostream& stream, int indent, const std::vector<Cell>& selected) const;

    // Removes all controls.
    void clear();

    // A preset that has no file changes nothing.
    void loadPreset(const std::string& name);
    void savePreset(const std::string& name, const std::vector<Cell>& selected);
    void renamePreset(const std::string& oldName, const std::string& newName);
    void deletePreset(const std::string& name);

    // Stores each control in its cell; one without a type empties the cell.
    void updateControls(const std::vector<Control>& controls, bool notifyGui, bool guiFlag);

    // Selects just these cells.
    void selectControls(const std::vector<Cell>& cells);

    // A new value from the window. A cell without a control is ignored.
    void changeControl(const ControlChange& change);

    // Gives a control of the map a value. Controls for bank and program of one destination send together, in the order
    // that devices want; the selected ones move by as much as a selected control.
    void changeControl(Control& control, std::int32_t value, bool updateGui, bool send);

    // Sends all controls, or those that send on their own.
    void sendAll(bool autoSendOnly);

    // An event passed the engine: the controls that send this event take its value.
    void updateControls(const MidiEngine::MirelMidiMessage& message);

    // Selects one control alone: the next in a direction, from the cell of the selected one, or the one of a cell. If
    // there is none, none is selected afterwards.
    void selectControl(const SelectControlType& type);

    // The control of a cell or else the selected one.
    void changeControlValue(const SelectControlType& type, const RelativeFixedValue& value);

    // The control of a cell, all of them, or else the selected one.
    void sendControlData(const SelectControlType& type);

private:
    // The events that select a program of a device, in the order in which it has to get them.
    enum class BankStep { NONE = -1, BANK_MSB = 0, BANK_LSB = 1, PROGRAM = 2 };

    static BankStep getBankStep(const ControlEvent* event);
    void sendBankStep(BankStep step, const ControlEvent& routing);
    void storeValue(Control& control, std::int32_t value, bool updateGui, bool send);
    void tellValue(const Control& control);
    void sendPresetNames();
    void moveGroup(const Control& source, std::int64_t delta, std::int64_t value);
    void select(Control& control, bool selected);
    Control* findSelected();
    Control* findNext(SelectControlType::Mode mode, const Control* from);
    Control* findTarget(const SelectControlType& type);
    bool follows(const Control& control, const MidiEngine::MirelMidiMessage& message);

    MirelIF& m_mirel;
    ControlMap m_controls;
    PresetFolder m_presets;
    ControlMessageManager m_messageManager;
    std::int32_t m_groupOvershoot = 0;
};

}
