// The kinds of settings. Each has a visitor of its own that distinguishes its members. Setters are for the thread that
// owns the function; setting something that a member does not have does nothing.
#pragma once

#include "Backend/functions/FunctionClasses.h"
#include "Backend/functions/FunctionSettingsType.h"
#include "Backend/functions/values/NoteToggle.h"
#include "Backend/functions/values/OnOffToggle.h"
#include "Backend/functions/values/RelativeFixedValue.h"
#include "Backend/functions/values/SelectControlType.h"
#include "Backend/functions/values/SelectType.h"
#include "Backend/functions/values/TypeList.h"
#include "Backend/functions/values/VisitorOperations.h"
#include "Backend/midi/MidiMessage.h"

#include <string>

namespace Backend::FunctionManagement {

// The base of every kind except NoFunction's.
template <class... Members>
class SettingsTypeOf : public FunctionSettingsType {
public:
    using MemberList = TypeList<Members...>;
    class Visitor : public VisitorOperations<MemberList> {};

    using FunctionSettingsType::accept;
    virtual void accept(Visitor& visitor) = 0;
};

// A function that applies to some of several things: which ones, and what to do with them. The flags say what can be
// chosen.
template <class Value, class... Members>
class SelectingSettingsType : public SettingsTypeOf<Members...> {
public:
    virtual SelectType getSelectType() const = 0;
    virtual void setSelectType(const SelectType& type) = 0;
    virtual Value getValue() const = 0;
    virtual void setValue(const Value& value) = 0;
    virtual bool hasType() const = 0;
    virtual bool hasValue() const = 0;
    virtual bool allowsUpDown() const = 0;
    virtual bool allowsSelected() const = 0;
    virtual bool allowsSpecific() const = 0;
    virtual bool allowsAll() const = 0;
};

class ChangeNoteToggleSettingsType : public SelectingSettingsType<NoteToggle, Functions::ChangeLayerNoteToggle> {};

class ChangeBooleanSettingsType
    : public SelectingSettingsType<OnOffToggle, Functions::ChangeOscPlaying, Functions::ChangeLayerSolo,
                                   Functions::ChangeLayerMute, Functions::ChangeLayerMono> {};

class SelectSettingsType
    : public SelectingSettingsType<RelativeFixedValue, Functions::ChangeOscSpeed, Functions::ChangeLayerVelocity,
                                   Functions::ChangeLayerTranspose, Functions::EditSelectLayer,
                                   Functions::DataSelectLayer, Functions::ChangeTempo,
                                   Functions::ChangeDefaultMidiOutput, Functions::ChangeZoneTranspose,
                                   Functions::SelectZone, Functions::ChangeProgram, Functions::DataSelectOsc> {};

class ActionSettingsType : public SettingsTypeOf<Functions::ResetMirel, Functions::ShowDefaultMidiOutputMenu,
                                                 Functions::ShowProgramMenu, Functions::ShowSaveDialog> {};

class SelectControlSettingsType : public SettingsTypeOf<Functions::SendControlData, Functions::SetWidgetFocus,
                                                        Functions::SelectControl, Functions::ChangeControl> {
public:
    virtual SelectControlType getSelectControlType() const = 0;
    virtual void setSelectControlType(const SelectControlType& type) = 0;
    virtual RelativeFixedValue getValue() const = 0;
    virtual void setValue(const RelativeFixedValue& value) = 0;
    virtual bool allowsDirections() const = 0;
    virtual bool allowsSelected() const = 0;
    virtual bool hasValue() const = 0;
    virtual bool allowsAll() const = 0;
};

class LoadPresetSettingsType : public SettingsTypeOf<Functions::LoadOscillatorPreset, Functions::LoadMidiInputPreset,
                                                     Functions::LoadLayerPreset, Functions::LoadJoystickInputPreset,
                                                     Functions::LoadControlPreset, Functions::LoadComputerInputPreset> {
public:
    virtual const std::string& getPresetName() const = 0;
    virtual void setPresetName(const std::string& name) = 0;
};

class MoveWindowSettingsType : public SettingsTypeOf<Functions::MoveWindowFunction> {
public:
    virtual RelativeFixedValue getX() const = 0;
    virtual void setX(const RelativeFixedValue& x) = 0;
    virtual RelativeFixedValue getY() const = 0;
    virtual void setY(const RelativeFixedValue& y) = 0;
};

class OnOffToggleSettingsType
    : public SettingsTypeOf<Functions::ChangeGlobalKeyboard, Functions::ChangeMidiThru, Functions::ShowZone,
                            Functions::ShowSystem, Functions::ShowOutput, Functions::ShowOscillator,
                            Functions::ShowMidiInput, Functions::ShowLayer, Functions::ShowJoystick,
                            Functions::ShowHelp, Functions::ShowDisplay, Functions::ShowControl,
                            Functions::ShowComputerInput, Functions::ShowCc> {
public:
    virtual OnOffToggle getOnOffToggle() const = 0;
    virtual void setOnOffToggle(const OnOffToggle& state) = 0;
};

// An event. Bytes; d1 of pitch bend and song position is the whole 14-bit value. -1: the default zone, output or
// channel. What an event does not have reads as 0, its channel as -1.
class MidiSettingsType
    : public SettingsTypeOf<Functions::MidiTuneRequest, Functions::MidiTimingTick, Functions::MidiSystemReset,
                            Functions::MidiStopSong, Functions::MidiStartSong, Functions::MidiSongSelect,
                            Functions::MidiSongPosition, Functions::MidiProgramChange, Functions::MidiPitchBend,
                            Functions::MidiNoteOn, Functions::MidiNoteOff, Functions::MidiKeyPressure,
                            Functions::MidiEndOfSysEx, Functions::MidiControllerChange, Functions::MidiContinueSong,
                            Functions::MidiChannelPressure, Functions::MidiBusSelect, Functions::MidiActiveSensing> {
public:
    virtual MidiEngine::MidiMessage::MessageType getStatus() const = 0;
    virtual char getZone() const = 0;
    virtual void setZone(char zone) = 0;
    virtual char getOutput() const = 0;
    virtual void setOutput(char output) = 0;
    virtual char getChannel() const = 0;
    virtual void setChannel(char channel) = 0;
    virtual short getD1() const = 0;
    virtual void setD1(short d1) = 0;
    virtual char getD2() const = 0;
    virtual void setD2(char d2) = 0;
};

class NoFunctionSettingsType : public FunctionSettingsType {};

using FunctionSettingsTypes =
    TypeList<ChangeNoteToggleSettingsType, ChangeBooleanSettingsType, ActionSettingsType, SelectSettingsType,
             SelectControlSettingsType, LoadPresetSettingsType, MoveWindowSettingsType, OnOffToggleSettingsType,
             MidiSettingsType, NoFunctionSettingsType>;

// Distinguishes the kinds.
class FunctionSettingsTypeVisitor : public VisitorOperations<FunctionSettingsTypes> {};

}
