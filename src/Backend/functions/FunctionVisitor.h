#pragma once

#include "Backend/functions/FunctionClasses.h"
#include "Backend/functions/values/TypeList.h"
#include "Backend/functions/values/VisitorOperations.h"

namespace Backend::FunctionManagement {

// clang-format off
using FunctionVisitorOrder = TypeList<
    Functions::ChangeOscSpeed, Functions::DataSelectOsc, Functions::ChangeOscPlaying,
    Functions::ChangeLayerNoteToggle, Functions::ChangeLayerSolo, Functions::ChangeLayerMono,
    Functions::ChangeLayerMute, Functions::ChangeLayerVelocity, Functions::ChangeLayerTranspose,
    Functions::EditSelectLayer, Functions::DataSelectLayer,
    Functions::ChangeGlobalKeyboard, Functions::ChangeMidiThru, Functions::ChangeTempo,
    Functions::ShowDefaultMidiOutputMenu, Functions::ChangeDefaultMidiOutput,
    Functions::ChangeZoneTranspose, Functions::SelectZone,
    Functions::ShowSaveDialog, Functions::ResetMirel, Functions::ShowProgramMenu, Functions::ChangeProgram,
    Functions::SendControlData, Functions::ChangeControl, Functions::SetWidgetFocus, Functions::SelectControl,
    Functions::LoadOscillatorPreset, Functions::LoadLayerPreset, Functions::LoadControlPreset,
    Functions::LoadJoystickInputPreset, Functions::LoadMidiInputPreset, Functions::LoadComputerInputPreset,
    Functions::ShowHelp, Functions::ShowJoystick, Functions::ShowOscillator, Functions::ShowDisplay,
    Functions::ShowZone, Functions::ShowLayer, Functions::ShowCc, Functions::ShowOutput, Functions::ShowMidiInput,
    Functions::ShowControl, Functions::ShowComputerInput, Functions::ShowSystem,
    Functions::NoFunction, Functions::MoveWindowFunction,
    Functions::MidiKeyPressure, Functions::MidiSystemReset, Functions::MidiActiveSensing, Functions::MidiStopSong,
    Functions::MidiContinueSong, Functions::MidiStartSong, Functions::MidiTimingTick, Functions::MidiEndOfSysEx,
    Functions::MidiTuneRequest, Functions::MidiBusSelect, Functions::MidiSongPosition, Functions::MidiNoteOn,
    Functions::MidiNoteOff, Functions::MidiPitchBend, Functions::MidiChannelPressure, Functions::MidiSongSelect,
    Functions::MidiProgramChange, Functions::MidiControllerChange>;
// clang-format on

// Distinguishes the classes of functions.
class FunctionVisitor : public VisitorOperations<FunctionVisitorOrder> {};

}
