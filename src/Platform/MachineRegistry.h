// The system's own settings, in which drivers are registered. Only Windows has them; elsewhere no key opens.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Platform {

class MachineRegistryKey {
public:
    virtual ~MachineRegistryKey() = default;

    virtual std::vector<std::string> getValueNames() const = 0;

    // Nothing if there is no text under this name.
    virtual std::optional<std::string> readText(const std::string& name) const = 0;

    // The system's error code; 0 on success.
    virtual long writeText(const std::string& name, const std::string& text) = 0;

    // Ignores a missing name.
    virtual void remove(const std::string& name) = 0;
};

// [any] Opens a key, creating it if missing; null if the caller lacks the rights.
[[nodiscard]] std::unique_ptr<MachineRegistryKey> openMachineRegistryKey(const std::string& key);

// [while nobody opens a key] Replaces the keys that openMachineRegistryKey opens, so that a test has its own; an empty
// function restores the system's.
void setMachineRegistry(std::function<std::unique_ptr<MachineRegistryKey>(const std::string& key)> registry);

// [any] What openMachineRegistryKey does by default.
[[nodiscard]] std::unique_ptr<MachineRegistryKey> openSystemRegistryKey(const std::string& key);

}
