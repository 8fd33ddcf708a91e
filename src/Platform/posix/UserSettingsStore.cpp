#include "Platform/SettingsStore.h"

#include <cstdlib>

namespace Platform {

std::unique_ptr<SettingsStore> createUserSettingsStore() {
    std::string folder;
    if (const char* configuration = std::getenv("XDG_CONFIG_HOME"); configuration && *configuration == '/')
        folder = configuration;
    else if (const char* home = std::getenv("HOME"); home && *home == '/')
        folder = std::string(home) + "/.config";
    else
        folder = "/nonexistent";  // Fails to open, so the settings keep their defaults.
    return createFileSettingsStore(folder + "/mirel/settings");
}

}
