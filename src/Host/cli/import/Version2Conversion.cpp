#include "Host/cli/import/Version2Conversion.h"

#include "Backend/core/Mirel.h"
#include "Backend/core/files/DefaultXml.h"
#include "Backend/core/installation/MirelUtils.h"
#include "Backend/core/installation/Product.h"
#include "Backend/core/version2/Version2Import.h"
#include "Backend/core/xml/Text.h"
#include "Backend/core/xml/XmlDocument.h"
#include "Backend/midi/sequences/SequencePresetNames.h"
#include "Host/cli/check/PresetFiles.h"
#include "Host/cli/script/ScriptPlayer.h"
#include "Platform/Files.h"
#include "Platform/TemporaryFolder.h"
#include "Platform/xml/XmlText.h"

#include <array>

namespace Host::Cli {

using namespace Backend;
using SequenceManagement::SequencePresetManager;
namespace Files = Platform::Files;

namespace {

constexpr const char* NOTHING = "holds no version 2 data";
constexpr const char* PRESET_NAME = "preset";
constexpr char PROGRAM = 'P';

constexpr std::array PRESET_FOLDERS = {
    ComputerInput::ComputerInputManager::PRESET_FOLDER,
    Controls::ControlManager::PRESET_FOLDER,
    Layers::LayerManager::PRESET_FOLDER,
};

// The content as UTF-8; nothing if it is not text.
std::optional<std::string> decode(const std::string& content) {
    auto text = Platform::decodeXml(content);
    if (!text)
        text = Platform::decodeXml("<?xml version=\"1.0\" encoding=\"windows-1252\"?>" + content);
    return text ? std::optional(std::move(text->text)) : std::nullopt;
}

// The import accepts any text whose first letter is right, and never fails.
bool beginsWithProgram(const std::string& text) {
    Version2Reader reader(text);
    reader.skipBlankLines();
    if (!reader.isAt(PROGRAM))
        return false;
    Version2Fields fields(reader.getLine());
    fields.next();
    fields.next();
    const bool hasName = !fields.next().empty();
    const std::string_view transpose = fields.next();
    return hasName && (transpose.empty() || Text::readInteger(transpose));
}

bool hasElements(const XmlElement& element) {
    for (auto child = element.begin(); child != element.end(); child.next())
        if (!child.getName().empty())
            return true;
    return false;
}

// The last component of a path.
std::string nameOf(const std::string& path) {
    return path.substr(path.find_last_of("/\\") + 1);
}

// A desk at rest with a temporary data folder that holds what an import looks at.
class ImportDesk {
public:
    explicit ImportDesk(const std::string& dataFolder) {
        MirelUtils::useDataFolder(m_folder.getPath());
        writeBasePreset(dataFolder);
        writeSequencePresets();
        m_mirel = std::make_unique<Mirel>(MIREL_PRODUCT, m_player);
    }

    ~ImportDesk() {
        m_mirel = nullptr;
        MirelUtils::useDataFolder("");
    }
    ImportDesk(const ImportDesk&) = delete;
    ImportDesk& operator=(const ImportDesk&) = delete;

    // The text of the new file; nothing if none was written.
    std::optional<std::string> import(Version2Kind kind, const std::string& fileName, const std::string& text) {
        const std::string inputs = Files::join(m_folder.getPath(), "From");
        const std::string from = Files::join(inputs, fileName);
        const std::string to = Files::join(m_folder.getPath(), "To");
        if (!Files::createFolders(inputs) || !Files::replace(from, text))
            return std::nullopt;
        Version2Import import(*m_mirel, m_mirel->getSequencePresets());
        switch (kind) {
            case Version2Kind::BANK: import.importBank(from, to); return Files::read(to);
            case Version2Kind::PROGRAM: import.importProgram(from, to); return Files::read(to);
            case Version2Kind::PRESET: import.importPreset(from, PRESET_NAME); return readPreset();
        }
        return std::nullopt;
    }

private:
    std::string presetPath(const std::string& folder, const std::string& name) const {
        return Files::join(Files::join(m_folder.getPath(), folder), name + PresetFolder::EXTENSION);
    }

    void writeBasePreset(const std::string& dataFolder) const {
        const std::string folder = ComputerInput::ComputerInputManager::PRESET_FOLDER;
        std::optional<std::string> preset;
        if (!dataFolder.empty())
            preset = PresetFiles("", dataFolder).read(folder, Version2Import::BASE_PRESET, PresetFolder::EXTENSION);
        Files::createFolders(Files::join(m_folder.getPath(), folder));
        static_cast<void>(Files::replace(presetPath(folder, Version2Import::BASE_PRESET),
                                         preset.value_or(DEFAULT_COMPUTER_INPUT_XML)));
    }

    // A layer keeps its sequence preset only if that has notes; it doesn't matter which.
    void writeSequencePresets() const {
        const std::string folder = Files::join(m_folder.getPath(), SequencePresetManager::FOLDER);
        Files::createFolders(folder);
        for (const std::string name : SequenceManagement::SEQUENCE_PRESET_NAMES)
            Files::append(Files::join(folder, name + SequencePresetManager::EXTENSION), "<Sequence>0</Sequence>");
    }

    // The file's name decided which folder it is in.
    std::optional<std::string> readPreset() const {
        for (const std::string folder : PRESET_FOLDERS)
            if (auto preset = Files::read(presetPath(folder, PRESET_NAME)))
                return preset;
        return std::nullopt;
    }

    Platform::TemporaryFolder m_folder;
    ScriptPlayer m_player{ScriptPlayer::Options{}};
    std::unique_ptr<Mirel> m_mirel;
};

}

std::optional<Version2Kind> findVersion2Kind(std::string_view word) {
    if (word == "bank")
        return Version2Kind::BANK;
    if (word == "program")
        return Version2Kind::PROGRAM;
    if (word == "preset")
        return Version2Kind::PRESET;
    return std::nullopt;
}

std::string convertVersion2(Version2Kind kind, const std::string& fileName, const std::string& content,
                            const std::string& dataFolder, std::string& result) {
    const auto text = decode(content);
    if (!text || (kind != Version2Kind::PRESET && !beginsWithProgram(*text)))
        return NOTHING;
    const auto imported = ImportDesk(dataFolder).import(kind, nameOf(fileName), *text);
    if (!imported)
        return kind == Version2Kind::PRESET
                   ? "has no version 2 preset's name, which begins with the word key, control or layer"
                   : "can't be converted";
    const XmlDocument document(*imported, false);
    if (!document.hasRoot() || !hasElements(document.getRootElement()))
        return NOTHING;
    result = *imported;
    return {};
}

}
