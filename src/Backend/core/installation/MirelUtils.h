#pragma once

#include <memory>
#include <string>

namespace Platform {
class SettingsStore;
}

namespace Backend {

// Where the desk keeps persistent data, and what its installer does. Folders are empty if the system has none for the
// user.
class MirelUtils {
public:
    // [before the first desk] Keeps all data and the settings in this folder instead of the user's own places.
    static void useDataFolder(const std::string& folder);

    // [any] The store of the settings, in which getMainRegistryKey is a key.
    [[nodiscard]] static std::unique_ptr<Platform::SettingsStore> createSettingsStore();

    // [any] The keys of the settings of the two editions.
    static std::string getMainRegistryKey();
    static std::string getMainRegistryKeyLite();

    // [any] The key of an edition, by its product's name.
    static std::string getRegistryKey(const std::string& productName);

    // [any] The maker's folder in the user's data, and the desk's own in that.
    static std::string getCompanyAppDataDir();
    static std::string getMirelAppDataDir();

    // [any] The folder of the program, which the installer stored in the settings, without a trailing separator.
    static std::string getMirelProgDir();

    // [any] The module handle of the library; null where modules have no handle.
    static void* getDllInstance();

    // [any] The name of the virtual MIDI port, and whether the system has it.
    static std::string getMirelPortName();
    static bool virtualMidiPortExists();

    // [any] Opens the manual in the program's folder with the user's program for it. page is ignored.
    static void showManual(const std::string& page);

    // [installer] Registers the virtual port if requested.
    static void install(bool installPort);

    // [installer] Removes the lists of ports, the folders if they hold nothing of the user's, and the virtual port
    // unless the other edition still needs it.
    static void uninstall();

    // [installer] Copies the files in folder/Default/subFolder to folder/subFolder, replacing existing ones, up to the
    // first failure. Subfolders are left out.
    static void copyFiles(const std::string& folder, const std::string& subFolder);

    // [installer] Removes from folder/subFolder the files with the same names as those in Default/subFolder of the
    // program's folder, and then the folder if it is empty.
    static void removeFiles(const char* folder, const char* subFolder);
};

}
