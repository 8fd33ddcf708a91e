// Functions that switch something on or off, or toggle it.
#pragma once

#include "Backend/functions/ConcreteFunction.h"

namespace Backend::FunctionManagement::Functions {

template <class Self>
class OnOffToggleFunction : public ConcreteFunction<Self, OnOffToggleSettingsType> {
public:
    using ConcreteFunction<Self, OnOffToggleSettingsType>::ConcreteFunction;

    static auto attributes() { return std::tuple(Attribute{"type", &OnOffToggleFunction::m_type}); }

    OnOffToggle getOnOffToggle() const override { return m_type; }
    void setOnOffToggle(const OnOffToggle& state) override { m_type = state; }

protected:
    OnOffToggle m_type;
};

// Shows or hides a screen.
template <class Self, void (MirelIF::*SHOW)(bool), void (MirelIF::*TOGGLE)()>
class ScreenFunction : public OnOffToggleFunction<Self> {
public:
    using OnOffToggleFunction<Self>::OnOffToggleFunction;

    void execute() override {
        switch (this->m_type.getState()) {
            case OnOffToggle::ON: (this->mirel().*SHOW)(true); break;
            case OnOffToggle::OFF: (this->mirel().*SHOW)(false); break;
            case OnOffToggle::TOGGLE: (this->mirel().*TOGGLE)(); break;
        }
    }
};

// A screen that this desk does not have. Files that mention it keep it.
template <class Self>
class MissingScreenFunction : public OnOffToggleFunction<Self> {
public:
    using OnOffToggleFunction<Self>::OnOffToggleFunction;

    void execute() override {}
};

// Changes a flag of the desk and notifies the window.
template <class Self, void (MirelIF::*CHANGE)(const OnOffToggle&, bool)>
class FlagFunction : public OnOffToggleFunction<Self> {
public:
    using OnOffToggleFunction<Self>::OnOffToggleFunction;

    void execute() override { (this->mirel().*CHANGE)(this->m_type, true); }
};

class ShowSystem final : public ScreenFunction<ShowSystem, &MirelIF::showSystemPanel, &MirelIF::toggleSystemPanel> {
public:
    using ScreenFunction::ScreenFunction;
};

class ShowHelp final : public ScreenFunction<ShowHelp, &MirelIF::showHelp, &MirelIF::toggleHelp> {
public:
    using ScreenFunction::ScreenFunction;
};

class ShowDisplay final : public ScreenFunction<ShowDisplay, &MirelIF::showDisplay, &MirelIF::toggleDisplay> {
public:
    using ScreenFunction::ScreenFunction;
};

class ShowComputerInput final
    : public ScreenFunction<ShowComputerInput, &MirelIF::showComputerInput, &MirelIF::toggleComputerInput> {
public:
    using ScreenFunction::ScreenFunction;
};

class ShowControl final : public ScreenFunction<ShowControl, &MirelIF::showControl, &MirelIF::toggleControl> {
public:
    using ScreenFunction::ScreenFunction;
};

class ShowOutput final : public ScreenFunction<ShowOutput, &MirelIF::showOutput, &MirelIF::toggleOutput> {
public:
    using ScreenFunction::ScreenFunction;
};

class ShowCc final : public ScreenFunction<ShowCc, &MirelIF::showCc, &MirelIF::toggleCc> {
public:
    using ScreenFunction::ScreenFunction;
};

class ShowLayer final : public ScreenFunction<ShowLayer, &MirelIF::showLayer, &MirelIF::toggleLayer> {
public:
    using ScreenFunction::ScreenFunction;
};

class ShowZone final : public ScreenFunction<ShowZone, &MirelIF::showZone, &MirelIF::toggleZone> {
public:
    using ScreenFunction::ScreenFunction;
};

class ShowMidiInput final : public MissingScreenFunction<ShowMidiInput> {
public:
    using MissingScreenFunction::MissingScreenFunction;
};

class ShowOscillator final : public MissingScreenFunction<ShowOscillator> {
public:
    using MissingScreenFunction::MissingScreenFunction;
};

class ShowJoystick final : public MissingScreenFunction<ShowJoystick> {
public:
    using MissingScreenFunction::MissingScreenFunction;
};

class ChangeMidiThru final : public FlagFunction<ChangeMidiThru, &MirelIF::changeMidiThru> {
public:
    using FlagFunction::FlagFunction;
};

class ChangeGlobalKeyboard final : public FlagFunction<ChangeGlobalKeyboard, &MirelIF::changeGlobalKeyboard> {
public:
    using FlagFunction::FlagFunction;
};

}
