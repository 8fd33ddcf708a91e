#include "Platform/MachineRegistry.h"

#include <utility>

namespace Platform {

namespace {

using Registry = std::function<std::unique_ptr<MachineRegistryKey>(const std::string&)>;

Registry& standIn() {
    static Registry registry;
    return registry;
}

}

void setMachineRegistry(Registry registry) {
    standIn() = std::move(registry);
}

std::unique_ptr<MachineRegistryKey> openMachineRegistryKey(const std::string& key) {
    return standIn() ? standIn()(key) : openSystemRegistryKey(key);
}

}
