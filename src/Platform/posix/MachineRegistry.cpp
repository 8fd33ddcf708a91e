#include "Platform/MachineRegistry.h"

namespace Platform {

std::unique_ptr<MachineRegistryKey> openMachineRegistryKey(const std::string&) {
    return nullptr;
}

}
