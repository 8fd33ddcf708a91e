#pragma once

#include "Backend/midi/sequences/Sequence.h"

#include <string>
#include <vector>

namespace Backend::SequenceManagement {

// Names of sequence presets, sorted.
using SequencePresetList = std::vector<std::string>;

// Keeps the list of sequence presets and their files, one per preset. [backend; load and getSequencePresetList also on
// threads with an object of their own]
class SequencePresetManager {
public:
    // The folder of the desk's files, inside the desk's data folder.
    static constexpr const char* FOLDER = "Sequences";

    static constexpr const char* EXTENSION = ".seq";

    // Reads the list of the folder with the files at once. A missing folder contains none; without a folder name there
    // are no presets, and none can be added.
    explicit SequencePresetManager(std::string folder);

    const SequencePresetList& getSequencePresetList() const { return m_names; }

    // The sequence in a preset's file; empty if the file can't be read.
    Sequence load(const std::string& name) const;

    // Writes a preset from the text form of a sequence, replacing one of the same name. Does nothing if the name is
    // empty or could lead out of the folder, or if the file can't be written.
    void addSequencePreset(const std::string& name, const std::string& text);

    // Removes a preset of the list, and its file.
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
