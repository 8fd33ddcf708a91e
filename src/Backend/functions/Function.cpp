#include "Backend/functions/Function.h"

namespace Backend::FunctionManagement {

namespace {

constexpr char NO_ZONE = -1;

}

Zones::Zone Function::getZoneRange() const {
    Zones::Zone none;
    none.id = NO_ZONE;
    return none;
}

}
