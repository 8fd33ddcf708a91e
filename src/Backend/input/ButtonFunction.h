#pragma once

#include "Backend/core/xml/Attribute.h"
#include "Backend/functions/Function.h"

#include <memory>

// What a button does when pressed and when released. Copies are deep.
struct ButtonFunction {
    static auto attributes() {
        return std::tuple(Backend::Attribute{"keepSending", &ButtonFunction::keepSending, false});
    }

    ButtonFunction() = default;
    ~ButtonFunction() = default;
    ButtonFunction(const ButtonFunction& other);
    ButtonFunction& operator=(const ButtonFunction& other);
    ButtonFunction(ButtonFunction&&) = default;
    ButtonFunction& operator=(ButtonFunction&&) = default;

    bool isEmpty() const { return !downFunction && !upFunction; }

    // Compares both slots; a null slot equals one with a function that does nothing.
    bool hasSameFunctions(const ButtonFunction& other) const;

    bool keepSending = false;  // Repeats of a held key execute the down function again.
    std::unique_ptr<Backend::FunctionManagement::Function> downFunction;
    std::unique_ptr<Backend::FunctionManagement::Function> upFunction;
};
