#include "Backend/core/installation/MidiPortInstallation.h"

#include "Backend/core/xml/Text.h"
#include "Platform/MachineRegistry.h"
#include "Platform/Shell.h"

#include <algorithm>
#include <array>
#include <limits>
#include <memory>
#include <string>
#include <vector>

namespace Backend {

namespace {

using Key = std::unique_ptr<Platform::MachineRegistryKey>;

constexpr const char* ERROR_TITLE = "ERROR";
constexpr std::string_view DRIVER_PREFIX = "midi";

// The drivers registered as "midi1" and so on, the ones that were installed, and their descriptions.
constexpr std::array KEYS = {
    "Software\\Microsoft\\Windows NT\\CurrentVersion\\Drivers32",
    "Software\\Microsoft\\Windows NT\\CurrentVersion\\userinstallable.drivers",
    "Software\\Microsoft\\Windows NT\\CurrentVersion\\drivers.desc",
};

// The number after "midi"; 0 for every other name.
int getDriverNumber(const std::string& name) {
    if (!name.starts_with(DRIVER_PREFIX) || name.size() <= DRIVER_PREFIX.size())
        return 0;
    return Text::readInteger(std::string_view(name).substr(DRIVER_PREFIX.size()), 0);
}

int getHighestNumber(const Platform::MachineRegistryKey& key) {
    int highest = 0;
    for (const std::string& name : key.getValueNames())
        highest = std::max(highest, getDriverNumber(name));
    return std::min(highest, std::numeric_limits<int>::max() - 1);  // There is always a next number.
}

void writeText(Platform::MachineRegistryKey& key, int number, const std::string& name, const std::string& text) {
    if (const long error = key.writeText(name, text))
        Platform::showMessage(
            "Couldn't set registry value (" + std::to_string(number) + "). Return value = " + std::to_string(error),
            ERROR_TITLE);
}

}

bool MidiPortInstallation::virtualMidiPortExists() {
    const auto names = Platform::getMidiInputNames();
    return std::find(names.begin(), names.end(), MIREL_PORT_NAME) != names.end();
}

void MidiPortInstallation::install() {
    if (virtualMidiPortExists())
        return;
    std::array<Key, KEYS.size()> keys;
    for (std::size_t i = 0; i < KEYS.size(); ++i) {
        keys[i] = Platform::openMachineRegistryKey(KEYS[i]);
        if (!keys[i]) {
            Platform::showMessage("Couldn't open/create registry key (" + std::to_string(i + 1) + ")", ERROR_TITLE);
            return;
        }
    }
    const auto& [drivers, installed, descriptions] = keys;
    const int highest = std::max(getHighestNumber(*drivers), getHighestNumber(*installed));
    const std::string name = std::string(DRIVER_PREFIX) + std::to_string(highest + 1);
    writeText(*drivers, 1, name, MIREL_PORT_FILE_NAME);
    writeText(*installed, 2, name, MIREL_PORT_FILE_NAME);
    writeText(*descriptions, 3, MIREL_PORT_FILE_NAME, MIREL_PORT_NAME);
    Platform::showMessage("You must restart Windows before using the virtual midi port", "Mirel Console 3 Install");
}

void MidiPortInstallation::uninstall() {
    const Key drivers = Platform::openMachineRegistryKey(KEYS[0]);
    const Key installed = Platform::openMachineRegistryKey(KEYS[1]);
    const Key descriptions = Platform::openMachineRegistryKey(KEYS[2]);
    const auto names = drivers ? drivers->getValueNames() : std::vector<std::string>();
    for (const std::string& name : names) {
        if (getDriverNumber(name) <= 0 || drivers->readText(name) != MIREL_PORT_FILE_NAME)
            continue;
        drivers->remove(name);
        if (installed)
            installed->remove(name);
    }
    if (descriptions)
        descriptions->remove(MIREL_PORT_FILE_NAME);
}

}
