#pragma once

#include "Backend/core/version2/Version2Reader.h"
#include "Backend/input/KeyConfigurationMap.h"
#include "Backend/input/controls/ControlMap.h"
#include "Backend/midi/layers/LayerList.h"

#include <optional>
#include <ostream>
#include <string>

namespace Backend {

class MirelIF;

// Turns files of version 2 into those of this one. A file that can't be read or written, or that would become larger
// than one that can be read, changes nothing; what can't be understood in it takes its default. [backend]
class Version2Import {
public:
    // The preset on top of whose keys those of a file stand, and that a program without keys refers to.
    static constexpr const char* BASE_PRESET = "000 - Default";

    Version2Import(MirelIF& mirel, const SequenceManagement::SequencePresetManager& sequences)
        : m_mirel(mirel), m_sequences(sequences) {}

    // To a bank or program file of a path.
    void importBank(const std::string& from, const std::string& to);
    void importProgram(const std::string& from, const std::string& to);

    // To a preset of a name. The first word of the old file's name tells of what: "key", "control" or "layer".
    void importPreset(const std::string& from, const std::string& to);

private:
    struct Components {
        ComputerInput::KeyConfigurationMap keys;
        Controls::ControlMap controls;
        Layers::LayerList layers;
        int tempo;
        int tempoSource;
        bool hasKeys = false;
    };

    Components createComponents();

    // Those of the preset on which the keys of a file stand; none if there is no such preset.
    const ComputerInput::KeyConfigurationMap& getBaseKeys();

    // Reads one section, if the reader is at one.
    bool readSection(Version2Reader& reader, Components& components);

    void convertProgram(Version2Reader& reader, std::ostream& stream);

    MirelIF& m_mirel;
    const SequenceManagement::SequencePresetManager& m_sequences;
    std::optional<ComputerInput::KeyConfigurationMap> m_baseKeys;  // Once they were read.
};

}
