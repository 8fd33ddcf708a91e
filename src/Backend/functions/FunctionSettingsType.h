#pragma once

namespace Backend::FunctionManagement {

class FunctionSettingsTypeVisitor;

// What about a function can be edited. Functions of one kind are edited in the same way.
class FunctionSettingsType {
public:
    virtual ~FunctionSettingsType() = default;

    virtual void accept(FunctionSettingsTypeVisitor& visitor) = 0;

protected:
    FunctionSettingsType() = default;
    FunctionSettingsType(const FunctionSettingsType&) = default;
    FunctionSettingsType& operator=(const FunctionSettingsType&) = default;
};

}
