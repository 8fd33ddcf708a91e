#pragma once

#include <string>

namespace Backend::FunctionManagement {

// A function that the user can choose.
struct FunctionDescriptor {
    std::string displayName;
    std::string xmlTag;
};

}
