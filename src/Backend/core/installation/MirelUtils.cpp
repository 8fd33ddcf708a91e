#include "Backend/core/installation/MirelUtils.h"

#include "Backend/core/installation/MidiPortInstallation.h"
#include "Backend/core/installation/Product.h"
#include "Backend/core/xml/Text.h"
#include "Platform/Files.h"
#include "Platform/Folders.h"
#include "Platform/SettingsStore.h"
#include "Platform/Shell.h"

#include <array>

namespace Backend {

namespace Files = Platform::Files;

namespace {

constexpr const char* COMPANY = "Tamsel Software";
constexpr const char* PRODUCT = "Mirel Console 3";
constexpr const char* SETTINGS_FILE = "settings";

constexpr std::size_t LONGEST_FOLDER = 1000;  // Including the terminating zero, like all texts in the settings.
constexpr const char* MANUAL = "README.txt";
constexpr const char* DEFAULT_FOLDER = "Default";

// The host writes them.
constexpr std::array PORT_LISTS = {"Midi Inputs.txt", "Midi Outputs.txt"};

std::string& chosenDataFolder() {
    static std::string folder;
    return folder;
}

// The program's folder from the settings of an edition, without a trailing separator.
std::string readProgDir(const Platform::SettingsKey* key) {
    std::string folder = key ? key->readText("ProgDir").value_or(std::string()) : std::string();
    if (folder.size() >= LONGEST_FOLDER)
        return {};
    if (folder.ends_with('\\') || (folder.size() > 1 && folder.ends_with('/')))
        folder.pop_back();
    return folder;
}

}

void MirelUtils::useDataFolder(const std::string& folder) {
    chosenDataFolder() = folder;
}

std::unique_ptr<Platform::SettingsStore> MirelUtils::createSettingsStore() {
    if (chosenDataFolder().empty())
        return Platform::createUserSettingsStore();
    return Platform::createFileSettingsStore(Files::join(chosenDataFolder(), SETTINGS_FILE));
}

std::string MirelUtils::getRegistryKey(const std::string& productName) {
    return std::string("Software\\") + COMPANY + "\\" + productName + "\\" + MIREL_VERSION;
}

std::string MirelUtils::getMainRegistryKey() {
    return getRegistryKey(PRODUCT);
}

std::string MirelUtils::getMainRegistryKeyLite() {
    return getRegistryKey(MIREL_PRODUCT);
}

std::string MirelUtils::getCompanyAppDataDir() {
    const std::string folder = Platform::userDataFolder();
    return folder.empty() ? folder : Files::join(folder, COMPANY);
}

std::string MirelUtils::getMirelAppDataDir() {
    if (!chosenDataFolder().empty())
        return chosenDataFolder();
    const std::string folder = getCompanyAppDataDir();
    return folder.empty() ? folder : Files::join(folder, MIREL_PRODUCT);
}

std::string MirelUtils::getMirelProgDir() {
    return readProgDir(createSettingsStore()->open(getMainRegistryKeyLite()).get());
}

void* MirelUtils::getDllInstance() {
    return Platform::getModuleInstance();
}

std::string MirelUtils::getMirelPortName() {
    return MidiPortInstallation::MIREL_PORT_NAME;
}

bool MirelUtils::virtualMidiPortExists() {
    return MidiPortInstallation::virtualMidiPortExists();
}

void MirelUtils::showManual(const std::string&) {
    Platform::openWithUsersProgram(Files::join(getMirelProgDir(), MANUAL));
}

void MirelUtils::install(bool installPort) {
    if (installPort)
        MidiPortInstallation::install();
}

void MirelUtils::uninstall() {
    for (const char* name : PORT_LISTS)
        Files::remove(Files::join(getMirelAppDataDir(), name));
    const auto otherEdition = createSettingsStore()->openExisting(getMainRegistryKey());
    if (Text::trim(readProgDir(otherEdition.get())).empty())
        MidiPortInstallation::uninstall();
    Files::removeEmptyFolder(getMirelAppDataDir());
    if (chosenDataFolder().empty())
        Files::removeEmptyFolder(getCompanyAppDataDir());
}

void MirelUtils::copyFiles(const std::string& folder, const std::string& subFolder) {
    const std::string source = Files::join(Files::join(folder, DEFAULT_FOLDER), subFolder);
    const std::string target = Files::join(folder, subFolder);
    Files::createFolders(target);
    for (const std::string& name : Files::list(source, "")) {
        const auto content = Files::read(Files::join(source, name));
        if (!content || !Files::replace(Files::join(target, name), *content))
            return;
    }
}

void MirelUtils::removeFiles(const char* folder, const char* subFolder) {
    const std::string original = Files::join(Files::join(getMirelProgDir(), DEFAULT_FOLDER), subFolder);
    const std::string target = Files::join(folder, subFolder);
    for (const std::string& name : Files::list(original, ""))
        Files::remove(Files::join(target, name));
    Files::removeEmptyFolder(target);
}

}
