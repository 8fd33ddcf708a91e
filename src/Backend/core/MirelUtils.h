#pragma once

#include <memory>
#include <string>

namespace Platform {
class SettingsStore;
}

namespace Backend {

// Where the desk keeps what outlives it. Folders are empty if the system has none for the user.
class MirelUtils {
public:
    // [before the first desk] Keeps all data and the settings in this folder instead of the user's own places.
    static void useDataFolder(const std::string& folder);

    // [any] The store of the settings, below which getMainRegistryKey lies.
    static std::unique_ptr<Platform::SettingsStore> createSettingsStore();

    // [any] The keys of the settings of the two editions.
    static std::string getMainRegistryKey();
    static std::string getMainRegistryKeyLite();

    // [any] The key of an edition by its product's name.
    static std::string getRegistryKey(const std::string& productName);

    // [any] The maker's folder in the user's data and the desk's own in it.
    static std::string getCompanyAppDataDir();
    static std::string getMirelAppDataDir();

    // [any] The folder of the program, which the installer left in the settings; without a separator at its end.
    static std::string getMirelProgDir();
};

}
