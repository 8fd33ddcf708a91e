#pragma once

namespace Backend::FunctionManagement {

class FunctionSettingsTypeVisitor;

// The editable settings of a function. Functions of one kind are edited in the same way.
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
