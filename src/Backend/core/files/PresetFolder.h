#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace Backend {

class XmlElement;

// The folder of a component's preset files. [backend]
class PresetFolder {
public:
    static constexpr const char* EXTENSION = ".pst";

    struct Preset {
        std::string name;
        bool merge = false;  // Whether it is added to what is there.
    };

    // The name of a folder below the one for the desk's data.
    explicit PresetFolder(std::string folderName) : m_folderName(std::move(folderName)) {}

    // The presets that were saved in this run, sorted by name.
    const std::vector<Preset>& getPresets() const { return m_presets; }
    std::vector<std::string> getNames() const;

    std::string getPresetPath(const std::string& name) const;

    // Gives the root of a preset's file to read. False if there is no such file; a file that is no XML gives an
    // element that isn't there.
    bool load(const std::string& name, const std::function<void(const XmlElement&)>& read) const;

    // Writes the text of a preset's file and makes the folder if need be. False, and nothing changes, for a name that
    // can't be one and a file that can't be written.
    bool write(const std::string& name, const std::string& text) const;

    // Writes a preset's file with what write puts behind the header, over one of the same name, and takes it into the
    // list.
    void save(const std::string& name, const std::function<void(std::ostream&)>& write);

    // Renames or removes a preset of the list with its file. A name that is not in the list is ignored.
    void renamePreset(const std::string& oldName, const std::string& newName);
    void deletePreset(const std::string& name);

private:
    std::string getPath() const;
    std::vector<Preset>::iterator find(const std::string& name);
    void sort();

    std::vector<Preset> m_presets;
    std::string m_folderName;
};

}
