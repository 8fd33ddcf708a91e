#pragma once

#include "Backend/functions/FunctionDescriptor.h"

namespace Backend::FunctionManagement {

// Receives all functions that the user can choose.
class FunctionEnumerator {
public:
    virtual ~FunctionEnumerator() = default;

    virtual void addFunction(const FunctionDescriptor& function) = 0;

    // Adds each of them, in the order of FUNCTION_LIST.
    void enumerate();
};

}
