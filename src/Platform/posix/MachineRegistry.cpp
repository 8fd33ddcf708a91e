#include "Platform/MachineRegistry.h"

namespace Platform {

std::unique_ptr<MachineRegistryKey> openSystemRegistryKey(const std::string&) {
    return nullptr;
}

}
