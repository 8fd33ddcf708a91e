// Functions that change some of several things, picked by a SelectType, or that only pick them.
#pragma once

#include "Backend/functions/ConcreteFunction.h"

namespace Backend::FunctionManagement::Functions {

// Picks one of several things.
template <class Self>
class SelectFunction : public ConcreteFunction<Self, SelectSettingsType> {
public:
    using ConcreteFunction<Self, SelectSettingsType>::ConcreteFunction;

    static auto attributes() { return std::tuple(Attribute{"type", &SelectFunction::m_type}); }

    SelectType getSelectType() const override { return m_type; }
    void setSelectType(const SelectType& type) override { m_type = type; }
    RelativeFixedValue getValue() const override { return RelativeFixedValue(); }
    void setValue(const RelativeFixedValue&) override {}
    bool hasType() const override { return true; }
    bool hasValue() const override { return false; }
    bool allowsUpDown() const override { return true; }
    bool allowsSelected() const override { return false; }
    bool allowsSpecific() const override { return true; }
    bool allowsAll() const override { return false; }

protected:
    SelectType m_type{SelectType::UP};
};

template <class Self, void (MirelIF::*OPERATION)(const SelectType&)>
class SelectOperation : public SelectFunction<Self> {
public:
    using SelectFunction<Self>::SelectFunction;

    void execute() override { (this->mirel().*OPERATION)(this->m_type); }
};

// Applies a value to some of several things.
template <class Self, class Kind, class Value>
class ChangeFunction : public ConcreteFunction<Self, Kind> {
public:
    using ConcreteFunction<Self, Kind>::ConcreteFunction;

    static auto attributes() {
        return std::tuple{
            Attribute{"type", &ChangeFunction::m_type},
            Attribute{"value", &ChangeFunction::m_value},
        };
    }

    // For things that this desk does not have.
    void execute() override {}

    SelectType getSelectType() const override { return m_type; }
    void setSelectType(const SelectType& type) override { m_type = type; }
    Value getValue() const override { return m_value; }
    void setValue(const Value& value) override { m_value = value; }
    bool hasType() const override { return true; }
    bool hasValue() const override { return true; }
    bool allowsUpDown() const override { return false; }
    bool allowsSelected() const override { return true; }
    bool allowsSpecific() const override { return true; }
    bool allowsAll() const override { return true; }

protected:
    SelectType m_type{SelectType::SELECTED};
    Value m_value;
};

template <class Self, class Kind, class Value, void (MirelIF::*OPERATION)(const SelectType&, const Value&)>
class ChangeOperation : public ChangeFunction<Self, Kind, Value> {
public:
    using ChangeFunction<Self, Kind, Value>::ChangeFunction;

    void execute() override { (this->mirel().*OPERATION)(this->m_type, this->m_value); }
};

class ChangeProgram final : public SelectOperation<ChangeProgram, &MirelIF::changeProgram> {
public:
    using SelectOperation::SelectOperation;
};

class ChangeDefaultMidiOutput final
    : public SelectOperation<ChangeDefaultMidiOutput, &MirelIF::changeDefaultMidiOutput> {
public:
    using SelectOperation::SelectOperation;
};

class SelectZone final : public SelectOperation<SelectZone, &MirelIF::selectZone> {
public:
    using SelectOperation::SelectOperation;
};

class DataSelectLayer final : public SelectOperation<DataSelectLayer, &MirelIF::dataSelectLayer> {
public:
    using SelectOperation::SelectOperation;
};

class EditSelectLayer final : public SelectOperation<EditSelectLayer, &MirelIF::editSelectLayer> {
public:
    using SelectOperation::SelectOperation;
};

// This desk has no oscillators. Files that mention their functions keep them.
class DataSelectOsc final : public SelectFunction<DataSelectOsc> {
public:
    using SelectFunction::SelectFunction;

    void execute() override {}
};

class ChangeOscSpeed final : public ChangeFunction<ChangeOscSpeed, SelectSettingsType, RelativeFixedValue> {
public:
    using ChangeFunction::ChangeFunction;
};

class ChangeOscPlaying final : public ChangeFunction<ChangeOscPlaying, ChangeBooleanSettingsType, OnOffToggle> {
public:
    using ChangeFunction::ChangeFunction;
};

class ChangeZoneTranspose final : public ChangeOperation<ChangeZoneTranspose, SelectSettingsType, RelativeFixedValue,
                                                         &MirelIF::changeZoneTranspose> {
public:
    using ChangeOperation::ChangeOperation;
};

class ChangeLayerTranspose final : public ChangeOperation<ChangeLayerTranspose, SelectSettingsType, RelativeFixedValue,
                                                          &MirelIF::changeLayerTranspose> {
public:
    using ChangeOperation::ChangeOperation;
};

class ChangeLayerVelocity final : public ChangeOperation<ChangeLayerVelocity, SelectSettingsType, RelativeFixedValue,
                                                         &MirelIF::changeLayerVelocity> {
public:
    using ChangeOperation::ChangeOperation;
};

class ChangeLayerMute final
    : public ChangeOperation<ChangeLayerMute, ChangeBooleanSettingsType, OnOffToggle, &MirelIF::changeLayerMute> {
public:
    using ChangeOperation::ChangeOperation;
};

class ChangeLayerMono final
    : public ChangeOperation<ChangeLayerMono, ChangeBooleanSettingsType, OnOffToggle, &MirelIF::changeLayerMono> {
public:
    using ChangeOperation::ChangeOperation;
};

class ChangeLayerSolo final
    : public ChangeOperation<ChangeLayerSolo, ChangeBooleanSettingsType, OnOffToggle, &MirelIF::changeLayerSolo> {
public:
    using ChangeOperation::ChangeOperation;
};

class ChangeLayerNoteToggle final : public ChangeOperation<ChangeLayerNoteToggle, ChangeNoteToggleSettingsType,
                                                           NoteToggle, &MirelIF::changeLayerNoteToggle> {
public:
    using ChangeOperation::ChangeOperation;
};

// Sets the tempo, in beats per minute.
class ChangeTempo final : public ConcreteFunction<ChangeTempo, SelectSettingsType> {
public:
    using ConcreteFunction::ConcreteFunction;

    static auto attributes() { return std::tuple(Attribute{"value", &ChangeTempo::m_value}); }

    void execute() override { mirel().changeTempo(m_value, true); }

    SelectType getSelectType() const override { return SelectType(); }
    void setSelectType(const SelectType&) override {}
    RelativeFixedValue getValue() const override { return m_value; }
    void setValue(const RelativeFixedValue& value) override { m_value = value; }
    bool hasType() const override { return false; }
    bool hasValue() const override { return true; }
    bool allowsUpDown() const override { return false; }
    bool allowsSelected() const override { return false; }
    bool allowsSpecific() const override { return false; }
    bool allowsAll() const override { return false; }

private:
    RelativeFixedValue m_value;
};

}
