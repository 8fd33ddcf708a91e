#pragma once

#include "Backend/functions/Function.h"

#include <memory>

namespace Backend {
class MirelIF;
}

namespace Backend::FunctionManagement {

// From the numbers in a version 2 file. Null for a type without a function here.
[[nodiscard]] std::unique_ptr<Function> createFromVersion2(MirelIF& mirel, int type, int d1, int d2, int zone,
                                                           int output, int channel);

}
