// Functions without parameters.
#pragma once

#include "Backend/functions/ConcreteFunction.h"

namespace Backend::FunctionManagement::Functions {

template <class Self, void (MirelIF::*OPERATION)()>
class ActionFunction : public ConcreteFunction<Self, ActionSettingsType> {
public:
    using ConcreteFunction<Self, ActionSettingsType>::ConcreteFunction;

    void execute() override { (this->mirel().*OPERATION)(); }
};

class ShowProgramMenu final : public ActionFunction<ShowProgramMenu, &MirelIF::showProgramMenu> {
public:
    using ActionFunction::ActionFunction;
};

class ShowDefaultMidiOutputMenu final
    : public ActionFunction<ShowDefaultMidiOutputMenu, &MirelIF::showDefaultMidiOutputMenu> {
public:
    using ActionFunction::ActionFunction;
};

class ResetMirel final : public ActionFunction<ResetMirel, &MirelIF::resetMirel> {
public:
    using ActionFunction::ActionFunction;
};

// This desk has no such dialog. Files that mention it keep it.
class ShowSaveDialog final : public ConcreteFunction<ShowSaveDialog, ActionSettingsType> {
public:
    using ConcreteFunction::ConcreteFunction;

    void execute() override {}
};

}
