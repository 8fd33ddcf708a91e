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

// Converts files of version 2 into current ones. A file that can't be read or written, or whose result would be too
// large to be read again, changes nothing; what makes no sense in it takes its default. [backend]
class Version2Import {
public:
    // The preset to whose keys those of a file are added, and that a program without keys refers to.
    static constexpr const char* BASE_PRESET = "000 - Default";

    Version2Import(MirelIF& mirel, const SequenceManagement::SequencePresetManager& sequences)
        : m_mirel(mirel), m_sequences(sequences) {}

    // To a bank or program file at a path.
    void importBank(const std::string& from, const std::string& to);
    void importProgram(const std::string& from, const std::string& to);

    // To a preset with a name. The first word of the old file's name gives its kind: "key", "control" or "layer".
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

    // The keys of the preset to which a file's keys are added; none if there is no such preset.
    const ComputerInput::KeyConfigurationMap& getBaseKeys();

    // Reads one section, if the reader is at one.
    bool readSection(Version2Reader& reader, Components& components);

    void convertProgram(Version2Reader& reader, std::ostream& stream);

    MirelIF& m_mirel;
    const SequenceManagement::SequencePresetManager& m_sequences;
    std::optional<ComputerInput::KeyConfigurationMap> m_baseKeys;  // Once they have been read.
};

}
