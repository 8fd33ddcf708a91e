#include "Backend/input/ButtonFunction.h"

#include "Backend/functions/FunctionList.h"

using Backend::FunctionManagement::Function;
using Backend::FunctionManagement::FUNCTION_ROW;
using Backend::FunctionManagement::Functions::NoFunction;

namespace {

std::unique_ptr<Function> copy(const std::unique_ptr<Function>& function) {
    return function ? function->clone() : nullptr;
}

bool doesNothing(const std::unique_ptr<Function>& function) {
    return !function || function->getXmlTag() == FUNCTION_ROW<NoFunction>.xmlTag;
}

bool areEqual(const std::unique_ptr<Function>& left, const std::unique_ptr<Function>& right) {
    if (doesNothing(left) || doesNothing(right))
        return doesNothing(left) && doesNothing(right);
    return *left == *right;
}

}

ButtonFunction::ButtonFunction(const ButtonFunction& other)
    : keepSending(other.keepSending), downFunction(copy(other.downFunction)), upFunction(copy(other.upFunction)) {}

ButtonFunction& ButtonFunction::operator=(const ButtonFunction& other) {
    if (this != &other)
        *this = ButtonFunction(other);
    return *this;
}

bool ButtonFunction::hasSameFunctions(const ButtonFunction& other) const {
    return areEqual(downFunction, other.downFunction) && areEqual(upFunction, other.upFunction);
}
