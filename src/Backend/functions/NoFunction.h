#pragma once

#include "Backend/functions/ConcreteFunction.h"

namespace Backend::FunctionManagement::Functions {

// What users choose for a slot that should stay empty.
class NoFunction final : public FunctionOfKind<NoFunction, NoFunctionSettingsType> {
public:
    using FunctionOfKind::FunctionOfKind;

    void execute() override {}
};

}
