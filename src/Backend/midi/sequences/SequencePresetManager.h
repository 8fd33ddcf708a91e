#pragma once

#include "Backend/midi/sequences/Sequence.h"

#include <string>
#include <vector>

namespace Backend::SequenceManagement {

// Names of sequence presets, sorted.
using SequencePresetList = std::vector<std::string>;

// Keeps the list of sequence presets and their files, one a preset. [backend; load and getSequencePresetList also by
// threads that have an object of their own]
class SequencePresetManager {
public:
    // The folder of the desk's files below the one for its data.
    static constexpr const char* FOLDER = "Sequences";

    static constexpr const char* EXTENSION = ".seq";

    // The folder that holds the files; its list is read at once. A folder that is missing holds none, and one without a
    // name neither holds nor takes any.
    explicit SequencePresetManager(std::string folder);

    const SequencePresetList& getSequencePresetList() const { return m_names; }

    // The sequence of a preset's file; empty if the file can't be read.
    Sequence load(const std::string& name) const;

    // Writes a preset from the text form of a sequence, over one of the same name. A name that is empty or could lead
    // out of the folder, and a file that can't be written, change nothing.
    void addSequencePreset(const std::string& name, const std::string& text);

    // Removes a preset of the list with its file.
    void deleteSequencePreset(const std::string& name);

    // Renames a preset of the list, unless newName is taken or unusable.
    void editSequencePreset(const std::string& name, const std::string& newName);

private:
    std::string filePath(const std::string& name) const;
    bool contains(const std::string& name) const;
    void insertName(const std::string& name);
    void removeName(const std::string& name);

    std::string m_folder;
    SequencePresetList m_names;
};

}
