#pragma once

#include <memory>
#include <string>

namespace Platform {
class SettingsStore;
}

namespace Backend {

// Where the desk keeps what outlives it, and what its installer does. Folders are empty if the system has none for the
// user.
class MirelUtils {
public:
    // [before the first desk] Keeps all data and the settings in this folder instead of the user's own places.
    static void useDataFolder(const std::string& folder);

    // [any] The store of the settings, below which getMainRegistryKey lies.
    [[nodiscard]] static std::unique_ptr<Platform::SettingsStore> createSettingsStore();

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

    // [any] The module that the library was loaded as; null where modules have no handle.
    static void* getDllInstance();

    // [any] The name of the virtual MIDI port, and whether the system has it.
    static std::string getMirelPortName();
    static bool virtualMidiPortExists();

    // [any] Opens the manual of the program's folder in the user's program for it. The page is not looked at.
    static void showManual(const std::string& page);

    // [installer] Makes the virtual port known to the system if asked to.
    static void install(bool installPort);

    // [installer] Removes the lists of ports, the folders if nothing of the user's is in them, and the virtual port
    // unless the other edition still needs it.
    static void uninstall();

    // [installer] Copies the files of folder/Default/subFolder to folder/subFolder, over what is there, up to the first
    // that fails. Folders in them are left out.
    static void copyFiles(const std::string& folder, const std::string& subFolder);

    // [installer] Removes from folder/subFolder what has the name of a file in Default/subFolder of the program's
    // folder, and then the folder if it is empty.
    static void removeFiles(const char* folder, const char* subFolder);
};

}
