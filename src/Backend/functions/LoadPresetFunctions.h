// Functions that load a preset by name.
#pragma once

#include "Backend/functions/ConcreteFunction.h"

#include <string>

namespace Backend::FunctionManagement::Functions {

template <class Self>
class LoadPresetFunction : public ConcreteFunction<Self, LoadPresetSettingsType> {
public:
    using ConcreteFunction<Self, LoadPresetSettingsType>::ConcreteFunction;

    static auto attributes() { return std::tuple(Attribute{"preset", &LoadPresetFunction::m_preset}); }

    // For presets of screens that this desk does not have.
    void execute() override {}

    const std::string& getPresetName() const override { return m_preset; }
    void setPresetName(const std::string& name) override { m_preset = name; }

protected:
    std::string m_preset;
};

class LoadComputerInputPreset final : public LoadPresetFunction<LoadComputerInputPreset> {
public:
    using LoadPresetFunction::LoadPresetFunction;

    void execute() override;
};

class LoadControlPreset final : public LoadPresetFunction<LoadControlPreset> {
public:
    using LoadPresetFunction::LoadPresetFunction;

    void execute() override;
};

class LoadLayerPreset final : public LoadPresetFunction<LoadLayerPreset> {
public:
    using LoadPresetFunction::LoadPresetFunction;

    void execute() override;
};

class LoadMidiInputPreset final : public LoadPresetFunction<LoadMidiInputPreset> {
public:
    using LoadPresetFunction::LoadPresetFunction;
};

class LoadOscillatorPreset final : public LoadPresetFunction<LoadOscillatorPreset> {
public:
    using LoadPresetFunction::LoadPresetFunction;
};

class LoadJoystickInputPreset final : public LoadPresetFunction<LoadJoystickInputPreset> {
public:
    using LoadPresetFunction::LoadPresetFunction;
};

}
