#include "Host/cli/check/PresetFiles.h"

#include "Backend/core/installation/MirelUtils.h"
#include "Backend/core/xml/FileNames.h"
#include "Platform/Files.h"
#include "Platform/SystemPath.h"

namespace Host::Cli {

namespace Files = Platform::Files;

namespace {

constexpr const char* INSTALLED = "Default";

std::string folderOf(const std::string& file) {
    const auto path = Platform::systemPath(file);
    const std::string folder = path ? Platform::utf8Path(path->parent_path()) : std::string();
    return folder.empty() ? "." : folder;
}

}

PresetFiles::PresetFiles(const std::string& file, const std::string& dataFolder) {
    std::vector<std::string> folders = {dataFolder};
    if (dataFolder.empty()) {
        const std::string folder = folderOf(file);
        folders = {folder, Files::join(folder, ".."), Backend::MirelUtils::getMirelAppDataDir()};
    }
    for (const std::string& folder : folders) {
        if (folder.empty())
            continue;  // The system has no place for the user's data.
        m_places.push_back(folder);
        m_places.push_back(Files::join(folder, INSTALLED));
    }
}

bool PresetFiles::contains(const std::string& folder, const std::string& name, const std::string& extension) {
    const std::string fileName = name + extension;
    const auto [entry, isNew] = m_known.try_emplace(Files::join(folder, fileName), false);
    if (isNew)
        entry->second = Backend::isUsableFileName(name) && !find(folder, fileName).empty();
    return entry->second;
}

std::optional<std::string> PresetFiles::read(const std::string& folder, const std::string& name,
                                             const std::string& extension) const {
    const std::string path = find(folder, name + extension);
    return path.empty() ? std::nullopt : Files::read(path);
}

std::string PresetFiles::find(const std::string& folder, const std::string& fileName) const {
    for (const std::string& place : m_places) {
        std::string path = Files::join(Files::join(place, folder), fileName);
        if (Files::size(path))
            return path;
    }
    return {};
}

}
