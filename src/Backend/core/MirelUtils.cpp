#include "Backend/core/MirelUtils.h"

#include "Platform/Files.h"
#include "Platform/Folders.h"
#include "Platform/SettingsStore.h"

namespace Backend {

namespace {

constexpr const char* COMPANY = "Tamsel Software";
constexpr const char* PRODUCT = "Mirel Console 3";
constexpr const char* PRODUCT_LITE = "Mirel Console 3 LE";
constexpr const char* SETTINGS_VERSION = "3.2";
constexpr const char* SETTINGS_FILE = "settings";
constexpr std::size_t LONGEST_FOLDER = 1000;  // With the zero that ends it, as all texts of the settings.

std::string& chosenDataFolder() {
    static std::string folder;
    return folder;
}

}

void MirelUtils::useDataFolder(const std::string& folder) {
    chosenDataFolder() = folder;
}

std::unique_ptr<Platform::SettingsStore> MirelUtils::createSettingsStore() {
    if (chosenDataFolder().empty())
        return Platform::createUserSettingsStore();
    return Platform::createFileSettingsStore(Platform::Files::join(chosenDataFolder(), SETTINGS_FILE));
}

std::string MirelUtils::getRegistryKey(const std::string& productName) {
    return std::string("Software\\") + COMPANY + "\\" + productName + "\\" + SETTINGS_VERSION;
}

std::string MirelUtils::getMainRegistryKey() {
    return getRegistryKey(PRODUCT);
}

std::string MirelUtils::getMainRegistryKeyLite() {
    return getRegistryKey(PRODUCT_LITE);
}

std::string MirelUtils::getCompanyAppDataDir() {
    const std::string folder = Platform::userDataFolder();
    return folder.empty() ? folder : Platform::Files::join(folder, COMPANY);
}

std::string MirelUtils::getMirelAppDataDir() {
    if (!chosenDataFolder().empty())
        return chosenDataFolder();
    const std::string folder = getCompanyAppDataDir();
    return folder.empty() ? folder : Platform::Files::join(folder, PRODUCT_LITE);
}

std::string MirelUtils::getMirelProgDir() {
    const auto key = createSettingsStore()->open(getMainRegistryKeyLite());
    std::string folder = key ? key->readText("ProgDir").value_or(std::string()) : std::string();
    if (folder.size() >= LONGEST_FOLDER)
        return {};
    if (folder.ends_with('\\') || (folder.size() > 1 && folder.ends_with('/')))
        folder.pop_back();
    return folder;
}

}
