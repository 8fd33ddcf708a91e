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
    // The folder of its preset files, inside the desk's data folder.
    static constexpr const char* PRESET_FOLDER = "Control Presets";

    ControlManager(MirelIF& mirel, MessageManagerMaster& master);

    ControlManager(const ControlManager&) = delete;
    ControlManager& operator=(const ControlManager&) = delete;

    ControlMessageManager& getMessageManager() { return m_messageManager; }
    const ControlMap& getControlMap() const { return m_controls; }
    const PresetFolder& getPresets() const { return m_presets; }

    // How far the control that leads a group is beyond the point where the group stopped at an end.
    std::int32_t getGroupOvershoot() const { return m_groupOvershoot; }

    // Loads the built-in controls.
    void loadDefaultControls();

    // Reads a Controls element. Controls that send automatically do so.
    void readXml(const XmlElement& element);

    // Writes a Controls element, indented by this many tabs: all controls, or the selected ones to be merged.
    void writeXml(std::ostream& stream, int indent, const std::vector<Cell>& selected) const;

    // Removes all controls.
    void clear();

    // A preset without a file changes nothing.
    void loadPreset(const std::string& name);
    void savePreset(const std::string& name, const std::vector<Cell>& selected);
    void renamePreset(const std::string& oldName, const std::string& newName);
    void deletePreset(const std::string& name);

    // Stores each control in its cell; one without a type empties the cell.
    void updateControls(const std::vector<Control>& controls, bool notifyGui, bool guiFlag);

    // Selects only these cells.
    void selectControls(const std::vector<Cell>& cells);

    // A new value from the window. A cell without a control is ignored.
    void changeControl(const ControlChange& change);

    // Sets the value of a control in the map. Bank and program controls for one destination send together, in the order
    // that devices need; the selected controls move by as much as a selected one.
    void changeControl(Control& control, std::int32_t value, bool updateGui, bool send);

    // Sends all controls, or those that send automatically.
    void sendAll(bool autoSendOnly);

    // An event passed the engine: the controls that send this event take its value.
    void updateControls(const MidiEngine::MirelMidiMessage& message);

    // Selects a single control: the next in a direction, from the selected one's cell, or the one in a given cell. If
    // there is none, none is selected afterwards.
    void selectControl(const SelectControlType& type);

    // Changes the control in a cell or otherwise the selected one.
    void changeControlValue(const SelectControlType& type, const RelativeFixedValue& value);

    // Sends the control in a cell, all of them, or otherwise the selected one.
    void sendControlData(const SelectControlType& type);

private:
    // The events that select a program on a device, in the order in which it needs them.
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
