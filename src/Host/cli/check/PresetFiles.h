#pragma once

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace Host::Cli {

// The preset files that a file of the desk may refer to.
class PresetFiles {
public:
    // dataFolder: where the folders of presets are. If empty, they are looked up in the user's own data, beside the
    // file and one level above it. In each place they may be inside a folder "Default", as installed.
    PresetFiles(const std::string& file, const std::string& dataFolder);

    // [any] Whether a folder such as "Layer Presets" has a preset of this name. Reads no file.
    bool contains(const std::string& folder, const std::string& name, const std::string& extension);

    // [any] The content of a preset's file; nothing if there is none.
    std::optional<std::string> read(const std::string& folder, const std::string& name,
                                    const std::string& extension) const;

private:
    // The path of the first file of this name; empty if there is none.
    std::string find(const std::string& folder, const std::string& fileName) const;

    std::vector<std::string> m_places;
    std::unordered_map<std::string, bool> m_known;  // By folder and name.
};

}
