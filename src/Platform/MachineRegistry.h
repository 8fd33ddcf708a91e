// The system's own settings: where drivers are made known. Only Windows has them; elsewhere no key opens.
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

    // Nothing if there is no text of this name.
    virtual std::optional<std::string> readText(const std::string& name) const = 0;

    // The system's code for what went wrong; 0 if nothing did.
    virtual long writeText(const std::string& name, const std::string& text) = 0;

    // A name that isn't there is ignored.
    virtual void remove(const std::string& name) = 0;
};

// [any] Opens a key, and makes it if it is missing; null if the caller may not.
[[nodiscard]] std::unique_ptr<MachineRegistryKey> openMachineRegistryKey(const std::string& key);

// [while nobody opens a key] Replaces the keys that openMachineRegistryKey opens, so that a test has its own; an empty
// function brings the system's back.
void setMachineRegistry(std::function<std::unique_ptr<MachineRegistryKey>(const std::string& key)> registry);

// [any] What openMachineRegistryKey does otherwise.
[[nodiscard]] std::unique_ptr<MachineRegistryKey> openSystemRegistryKey(const std::string& key);

}
