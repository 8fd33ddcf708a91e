#include "Backend/core/version2/Version2Import.h"

#include "Backend/core/MirelIF.h"
#include "Backend/core/files/BankFile.h"
#include "Backend/core/files/PresetFolder.h"
#include "Backend/core/files/Program.h"
#include "Backend/core/version2/Version2Sections.h"
#include "Backend/core/xml/ElementWriter.h"
#include "Backend/core/xml/FileNames.h"
#include "Backend/core/xml/Text.h"
#include "Backend/input/ComputerInputManager.h"
#include "Backend/input/KeyListElement.h"
#include "Backend/input/controls/ControlManager.h"
#include "Backend/midi/layers/ZoneMap.h"
#include "Backend/midi/managers/LayerManager.h"
#include "Platform/Files.h"

#include <sstream>
#include <vector>

namespace Backend {

namespace Files = Platform::Files;

namespace {

constexpr char PROGRAM = 'P';
constexpr char KEYS = 'K';
constexpr char CONTROLS = 'C';
constexpr char LAYERS = 'L';
constexpr int TRANSPOSES = 10;

struct ProgramHeader {
    std::string name;
    std::vector<std::int32_t> transposes;  // Of the zones from 0, without trailing zeros.
};

ProgramHeader parseHeader(std::string_view line) {
    ProgramHeader header;
    Version2Fields fields(line);
    fields.next();
    fields.next();
    header.name = withBlanks(fields.next());
    for (int zone = 0; zone < TRANSPOSES; ++zone) {
        header.transposes.push_back(fields.nextNumber(0));
        fields.next();
    }
    while (!header.transposes.empty() && header.transposes.back() == 0)
        header.transposes.pop_back();
    return header;
}

Zones::ZoneMap makeZones(const std::vector<std::int32_t>& transposes) {
    Zones::ZoneMap zones;
    for (std::size_t i = 0; i < transposes.size(); ++i) {
        Zones::Zone zone;
        zone.id = static_cast<Zones::ZoneId>(i);
        zone.transpose = Text::lowByte(transposes[i]);
        zones.set(zone);
    }
    return zones;
}

// Imported keys have no flag of their own, and their preset comes last.
struct ImportedKeysElement : ComputerInput::ProgramKeysElement {
    static auto attributes() {
        const auto [preset, merge, useKeyUpMod] = ProgramKeysElement::attributes();
        return std::tuple(merge, preset);
    }
};

// preset: the preset that the element refers to, or empty.
void writeKeys(std::ostream& stream, int indent, const ComputerInput::KeyConfigurationMap& keys,
               const std::string& preset) {
    ImportedKeysElement list;
    list.preset = preset;
    const ElementWriter element(stream, indent, ComputerInput::KeyConfigurationMap::TAG, list);
    keys.writeKeys(stream, element.getInnerIndent(), {});
}

std::string getFirstWordOfFileName(const std::string& path) {
    const auto separator = path.find_last_of("/\\");
    const std::string name = separator == std::string::npos ? path : path.substr(separator + 1);
    return name.substr(0, name.find(' '));
}

// The desk loads the file next, and traces it as missing if it could not be written.
void replaceText(const std::string& path, const std::string& text) {
    static_cast<void>(Files::replace(path, Files::withSystemLineEnds(text)));
}

}

Version2Import::Components Version2Import::createComponents() {
    return {.keys = {},
            .controls = {},
            .layers = {},
            .tempo = Program::DEFAULT_TEMPO,
            .tempoSource = Program::NO_TEMPO_SOURCE};
}

const ComputerInput::KeyConfigurationMap& Version2Import::getBaseKeys() {
    if (!m_baseKeys) {
        m_baseKeys.emplace();
        bool useKeyUpMod = false;
        m_mirel.getComputerInput().readPreset(BASE_PRESET, *m_baseKeys, useKeyUpMod);
    }
    return *m_baseKeys;
}

bool Version2Import::readSection(Version2Reader& reader, Components& components) {
    if (reader.isAt(KEYS)) {
        if (!components.hasKeys)
            components.keys = getBaseKeys();
        components.hasKeys = true;
        readVersion2Keys(reader, m_mirel, components.keys);
    } else if (reader.isAt(CONTROLS)) {
        readVersion2Controls(reader, components.controls);
    } else if (reader.isAt(LAYERS)) {
        readVersion2Layers(reader, m_sequences, components.layers, components.tempo, components.tempoSource);
    } else {
        return false;
    }
    return true;
}

void Version2Import::convertProgram(Version2Reader& reader, std::ostream& stream) {
    const ProgramHeader header = parseHeader(reader.getLine());
    reader.nextLine();
    Components components = createComponents();
    do
        reader.skipBlankLines();
    while (readSection(reader, components));
    const ElementWriter program(stream, 0, BankFile::PROGRAM_TAG,
                                Program(header.name, 0, components.tempo, components.tempoSource));
    const int indent = program.getInnerIndent();
    writeKeys(stream, indent, components.keys, components.keys.empty() ? BASE_PRESET : "");
    components.controls.writeXml(stream, indent, {});
    components.layers.writeXml(stream, indent, {});
    makeZones(header.transposes).writeXml(stream, indent, false);
}

void Version2Import::importBank(const std::string& from, const std::string& to) {
    const auto text = Files::read(from);
    if (!text)
        return;
    Version2Reader reader(*text);
    std::ostringstream programs;
    for (reader.skipBlankLines(); reader.isAt(PROGRAM); reader.skipBlankLines()) {
        convertProgram(reader, programs);
        if (static_cast<std::uintmax_t>(programs.tellp()) > Files::MAX_SIZE)
            return;
    }
    replaceText(to, BankFile::wrapProgram(BankFile::BANK_TAG, programs.str()));
}

void Version2Import::importProgram(const std::string& from, const std::string& to) {
    const auto text = Files::read(from);
    if (!text)
        return;
    Version2Reader reader(*text);
    std::ostringstream program;
    reader.skipBlankLines();
    if (reader.isAt(PROGRAM))
        convertProgram(reader, program);
    replaceText(to, BankFile::wrapProgram(BankFile::PROGRAM_FILE_TAG, program.str()));
}

void Version2Import::importPreset(const std::string& from, const std::string& to) {
    const auto text = Files::read(from);
    if (!text || !isUsableFileName(to))
        return;
    Version2Reader reader(*text);
    reader.nextLine();
    reader.nextLine();
    Components components = createComponents();
    reader.skipBlankLines();
    readSection(reader, components);

    std::ostringstream preset;
    preset << getXmlHeader() << "\n\n";
    const std::string kind = getFirstWordOfFileName(from);
    const PresetFolder* folder = nullptr;
    if (kind == "key") {
        writeKeys(preset, 0, components.keys, "");
        folder = &m_mirel.getComputerInput().getPresets();
    } else if (kind == "control") {
        components.controls.writeXml(preset, 0, {});
        folder = &m_mirel.getControls().getPresets();
    } else if (kind == "layer") {
        components.layers.writeXml(preset, 0, {});
        folder = &m_mirel.getLayers().getPresets();
    }
    if (folder)
        folder->write(to, preset.str());
}

}
