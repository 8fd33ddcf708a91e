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
        bool merge = false;  // Whether it is added to what is already there.
    };

    // The name of a folder inside the desk's data folder.
    explicit PresetFolder(std::string folderName) : m_folderName(std::move(folderName)) {}

    // The presets saved in this run, sorted by name.
    const std::vector<Preset>& getPresets() const { return m_presets; }
    std::vector<std::string> getNames() const;

    std::string getPresetPath(const std::string& name) const;

    // Passes the root of a preset's file to read. False if the file is missing; a file that is not XML gives a missing
    // element.
    bool load(const std::string& name, const std::function<void(const XmlElement&)>& read) const;

    // Writes a preset's file, creating the folder if necessary. False, and nothing changes, if the name is unusable or
    // the file can't be written.
    bool write(const std::string& name, const std::string& text) const;

    // Writes a preset's file with what write adds after the header, replacing one of the same name, and adds it to the
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
