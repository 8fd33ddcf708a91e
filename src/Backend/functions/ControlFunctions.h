// Functions that act on controls.
#pragma once

#include "Backend/functions/ConcreteFunction.h"

namespace Backend::FunctionManagement::Functions {

template <class Self>
class ControlFunction : public ConcreteFunction<Self, SelectControlSettingsType> {
public:
    using ConcreteFunction<Self, SelectControlSettingsType>::ConcreteFunction;

    static auto attributes() { return std::tuple(Attribute{"type", &ControlFunction::m_type}); }

    SelectControlType getSelectControlType() const override { return m_type; }
    void setSelectControlType(const SelectControlType& type) override { m_type = type; }
    RelativeFixedValue getValue() const override { return RelativeFixedValue(); }
    void setValue(const RelativeFixedValue&) override {}
    bool allowsDirections() const override { return false; }
    bool allowsSelected() const override { return true; }
    bool hasValue() const override { return false; }
    bool allowsAll() const override { return false; }

protected:
    ControlFunction(MirelIF& mirel, SelectControlType::Mode mode)
        : ConcreteFunction<Self, SelectControlSettingsType>(mirel), m_type(mode, Cell()) {}

    SelectControlType m_type;
};

class SelectControl final : public ControlFunction<SelectControl> {
public:
    explicit SelectControl(MirelIF& mirel) : ControlFunction(mirel, SelectControlType::RIGHT) {}

    void execute() override { mirel().selectControl(m_type); }

    bool allowsDirections() const override { return true; }
    bool allowsSelected() const override { return false; }
};

// Moves the keyboard focus to a control.
class SetWidgetFocus final : public ControlFunction<SetWidgetFocus> {
public:
    explicit SetWidgetFocus(MirelIF& mirel) : ControlFunction(mirel, SelectControlType::RIGHT) {}

    void execute() override;

    bool allowsDirections() const override { return true; }
};

class ChangeControl final : public ControlFunction<ChangeControl> {
public:
    explicit ChangeControl(MirelIF& mirel) : ControlFunction(mirel, SelectControlType::SELECTED) {}

    static auto attributes() {
        return std::tuple_cat(ControlFunction::attributes(), std::tuple(Attribute{"value", &ChangeControl::m_value}));
    }

    void execute() override { mirel().changeControl(m_type, m_value); }

    RelativeFixedValue getValue() const override { return m_value; }
    void setValue(const RelativeFixedValue& value) override { m_value = value; }
    bool hasValue() const override { return true; }

private:
    RelativeFixedValue m_value;
};

class SendControlData final : public ControlFunction<SendControlData> {
public:
    explicit SendControlData(MirelIF& mirel) : ControlFunction(mirel, SelectControlType::SELECTED) {}

    void execute() override { mirel().sendControlData(m_type); }

    bool allowsAll() const override { return true; }
};

}
