#pragma once

#include "Backend/functions/FunctionClasses.h"
#include "Backend/functions/FunctionVisitor.h"
#include "Backend/functions/values/TypeList.h"

#include <cstddef>
#include <tuple>

namespace Backend::FunctionManagement {

// One function class. Users can't choose a function without a display name.
template <class Function>
struct FunctionRow {
    const char* displayName;
    const char* xmlTag;
    int helpId;
    const char* helpText;
};

// All functions, in the order in which users see them.
// clang-format off
inline constexpr std::tuple FUNCTION_LIST = {
    FunctionRow<Functions::NoFunction>{"None", "NoFunction", 5345, "No function."},
    FunctionRow<Functions::MidiNoteOn>{"Midi Note On", "MidiNoteOn", 5351, "Play a midi note on event (0x9c)."},
    FunctionRow<Functions::MidiNoteOff>{"Midi Note Off", "MidiNoteOff", 5352, "Play a midi note off event (0x8c)."},
    FunctionRow<Functions::MidiKeyPressure>{"Midi Key Pressure", "MidiKeyPressure", 5368, "Play a midi key pressure event (0xAc)."},
    FunctionRow<Functions::MidiControllerChange>{"Midi Controller Change", "MidiControllerChange", 5353, "Play a midi controller change event (0xBc)."},
    FunctionRow<Functions::MidiProgramChange>{"Midi Program Change", "ProgramChange", 5354, "Play a midi program change event (0xCc)."},
    FunctionRow<Functions::MidiChannelPressure>{"Midi Channel Pressure", "MidiChannelPressure", 5356, "Play a midi channel pressure event (0xDc)."},
    FunctionRow<Functions::MidiPitchBend>{"Midi Pitch Bend", "MidiPitchBend", 5357, "Play a midi pitch bend event (0xEc)."},
    FunctionRow<Functions::MidiSongPosition>{"Midi Song Position", "MidiSongPosition", 5358, "Play a midi song position event (0xF2)."},
    FunctionRow<Functions::MidiSongSelect>{"Midi Song Select", "MidiSongSelect", 5355, "Play a midi song select event (0xF3)."},
    FunctionRow<Functions::MidiBusSelect>{"Midi Bus Select", "MidiBusSelect", 5359, "Play a midi bus select event (0xF5)."},
    FunctionRow<Functions::MidiTuneRequest>{"Midi Tune Request", "MidiTuneRequest", 5360, "Play a midi tune request event (0xF6)."},
    FunctionRow<Functions::MidiTimingTick>{"Midi Timing Tick", "MidiTimingTick", 5362, "Play a midi timing tick event (0xF8)."},
    FunctionRow<Functions::MidiStartSong>{"Midi Start Song", "MidiStartSong", 5363, "Play a midi start song event (0xFA)."},
    FunctionRow<Functions::MidiContinueSong>{"Midi Continue Song", "MidiContinueSong", 5364, "Play a midi continue song event (0xFB)."},
    FunctionRow<Functions::MidiStopSong>{"Midi Stop Song", "MidiStopSong", 5365, "Play a midi stop song event (0xFC)."},
    FunctionRow<Functions::MidiActiveSensing>{"Midi Active Sensing", "MidiActiveSensing", 5366, "Play a midi active sensing event (0xFE)."},
    FunctionRow<Functions::MidiSystemReset>{"Midi System Reset", "MidiSystemReset", 5367, "Play a midi system reset event (0xFF)."},
    FunctionRow<Functions::ShowSystem>{"Show Main Screen", "ShowSystem", 5297, "Show or hide main screen."},
    FunctionRow<Functions::ShowHelp>{"Show Help", "ShowHelp", 5301, "Show or hide help screen."},
    FunctionRow<Functions::ShowDisplay>{"Show Display", "ShowDisplay", 5309, "Show or hide display screen."},
    FunctionRow<Functions::ShowOscillator>{"Show Oscillator", "ShowOscillator", 5313, "Show or hide oscillator screen."},
    FunctionRow<Functions::ShowJoystick>{"Show Joystick Input", "ShowJoystick", 5317, "Show or hide joystick screen."},
    FunctionRow<Functions::ShowMidiInput>{"Show Midi Input", "ShowMidiInput", 5278, "Show or hide midi input screen."},
    FunctionRow<Functions::ShowComputerInput>{"Show Computer Input", "ShowComputerInput", 5274, "Show or hide computer input screen."},
    FunctionRow<Functions::ShowControl>{"Show Controls", "ShowControl", 5305, "Show or hide control screen."},
    FunctionRow<Functions::ShowOutput>{"Show Output", "ShowOutput", 5321, "Show or hide output screen."},
    FunctionRow<Functions::ShowCc>{"Show CC", "ShowCC", 5333, "Show or hide CC screen."},
    FunctionRow<Functions::ShowZone>{"Show Zone", "ShowZone", 5329, "Show or hide zone screen."},
    FunctionRow<Functions::ShowLayer>{"Show Layer", "ShowLayer", 5325, "Show or hide layer screen."},
    FunctionRow<Functions::ShowSaveDialog>{"Show Save Dialog", "ShowSaveDialog", 5382, "Show save dialog."},
    FunctionRow<Functions::MoveWindowFunction>{"Move Window", "MoveWindow", 5270, "Moves MIREL window."},
    FunctionRow<Functions::LoadOscillatorPreset>{"Load Oscillator Preset", "LoadOscillatorPreset", 5374, "Load an oscillator preset."},
    FunctionRow<Functions::LoadJoystickInputPreset>{"Load Joystick Input Preset", "LoadJoystickInputPreset", 5372, "Load a joystick preset."},
    FunctionRow<Functions::LoadMidiInputPreset>{"Load Midi Input Preset", "LoadMidiInputPreset", 5370, "Load a midi input preset."},
    FunctionRow<Functions::LoadComputerInputPreset>{"Load Computer Input Preset", "LoadComputerInputPreset", 5369, "Load a computer input preset."},
    FunctionRow<Functions::LoadControlPreset>{"Load Control Preset", "LoadControlPreset", 5371, "Load a control preset."},
    FunctionRow<Functions::LoadLayerPreset>{"Load Layer Preset", "LoadLayerPreset", 5373, "Load a layer preset."},
    FunctionRow<Functions::ChangeProgram>{"Change Program", "ChangeProgram", 5379, "Change MIREL program."},
    FunctionRow<Functions::ShowProgramMenu>{"Show Program Menu", "ShowProgramMenu", 5380, "Show MIREL program menu."},
    FunctionRow<Functions::ChangeDefaultMidiOutput>{"Change Default Midi Output", "ChangeDefaultMidiOutput", 5385, "Change MIREL's default midi output."},
    FunctionRow<Functions::ShowDefaultMidiOutputMenu>{"Show Default Midi Output Menu", "ShowDefaultMidiOutputMenu", 5386, "Show default midi output menu."},
    FunctionRow<Functions::ChangeMidiThru>{"Change Midi Thru", "ChangeMidiThru", 5337, "Enable or disable midi thru."},
    FunctionRow<Functions::ChangeGlobalKeyboard>{"Change Global Keyboard", "ChangeGlobalKeyboard", 5341, "Enable or disable global keyboard."},
    FunctionRow<Functions::ChangeTempo>{"Change Tempo", "ChangeTempo", 5387, "Change temo."},
    FunctionRow<Functions::ResetMirel>{"Reset MIREL", "ResetMirel", 5381, "Reset MIREL."},
    FunctionRow<Functions::DataSelectOsc>{"Data Select Oscillator", "DataSelectOsc", 5396, "Data select one or more oscillators."},
    FunctionRow<Functions::ChangeOscPlaying>{"Start/Stop Oscillator", "ChangeOscPlaying", 5397, "Start or stop one or more oscillators."},
    FunctionRow<Functions::ChangeOscSpeed>{"Change Oscillator Speed", "ChangeOscSpeed", 5398, "Change oscillator speed."},
    FunctionRow<Functions::SelectControl>{"Select Control", "SelectControl", 5375, "Select one or more controls."},
    FunctionRow<Functions::SetWidgetFocus>{"Set Control Focus", "SetWidgetFocus", 5376, "Positions cursor at selected control (Edit control's only)."},
    FunctionRow<Functions::ChangeControl>{"Change Control", "ChangeControl", 5377, "Change a control's value."},
    FunctionRow<Functions::SendControlData>{"Send Control Data", "SendControlData", 5378, "Send control data."},
    FunctionRow<Functions::SelectZone>{"Select Zone", "SelectZone", 5383, "Select one or more zones."},
    FunctionRow<Functions::ChangeZoneTranspose>{"Change Zone Transpose", "ChangeZoneTranspose", 5384, "Change zone transpose setting."},
    FunctionRow<Functions::DataSelectLayer>{"Data Select Layer", "DataSelectLayer", 5388, "Data select one or more layers."},
    FunctionRow<Functions::EditSelectLayer>{"Edit Select Layer", "EditSelectLayer", 5389, "Edit select one or more layers."},
    FunctionRow<Functions::ChangeLayerTranspose>{"Change Layer Transpose", "ChangeLayerTranspose", 5390, "Change layer's transpose setting."},
    FunctionRow<Functions::ChangeLayerVelocity>{"Change Layer Velocity", "ChangeLayerVelocity", 5391, "Change layer's velocity setting."},
    FunctionRow<Functions::ChangeLayerMute>{"Change Layer Mute", "ChangeLayerMute", 5392, "Change layer's mute setting."},
    FunctionRow<Functions::ChangeLayerMono>{"Change Layer Mono", "ChangeLayerMono", 5393, "Change layer's mono setting."},
    FunctionRow<Functions::ChangeLayerSolo>{"Change Layer Solo", "ChangeLayerSolo", 5394, "Change layer's solo setting."},
    FunctionRow<Functions::ChangeLayerNoteToggle>{"Change Layer Note Toggle", "ChangeLayerNoteToggle", 5395, "Change layer's note toggle setting."},
    // Only comes from files.
    FunctionRow<Functions::MidiEndOfSysEx>{nullptr, "MidiEndOfSysEx", 5361, "Play a midi end of sysex event (0xF7)."},
};
// clang-format on

template <class Row>
struct ClassOfRow;
template <class Function>
struct ClassOfRow<FunctionRow<Function>> {
    using Type = Function;
};

template <class Rows>
struct ClassesOfRows;
template <class... Functions>
struct ClassesOfRows<const std::tuple<FunctionRow<Functions>...>> {
    using Type = TypeList<Functions...>;
};

// The classes in the list, in its order.
using AllFunctions = ClassesOfRows<decltype(FUNCTION_LIST)>::Type;

static_assert(AllFunctions::HAS_TYPES_OF<FunctionVisitorOrder>);

// The row of a class.
template <class Function>
constexpr const FunctionRow<Function>& FUNCTION_ROW = std::get<FunctionRow<Function>>(FUNCTION_LIST);

}
