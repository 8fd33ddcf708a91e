#pragma once

#include <string>
#include <unordered_map>
#include <vector>

namespace Host::Cli {

// The preset files that a file of the desk may refer to.
class PresetFiles {
public:
    // dataFolder: where the folders of presets are. If it is empty they are looked for in the user's own data, beside
    // the file and one level above it. In each place they may lie in a folder "Default", as installed.
    PresetFiles(const std::string& file, const std::string& dataFolder);

    // [any] Whether there is a preset of a name in a folder such as "Layer Presets". No file is read.
    bool contains(const std::string& folder, const std::string& name, const std::string& extension);

private:
    bool isAnywhere(const std::string& folder, const std::string& fileName) const;

    std::vector<std::string> m_places;
    std::unordered_map<std::string, bool> m_known;  // By folder and name.
};

}
