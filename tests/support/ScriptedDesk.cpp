#include "tests/support/ScriptedDesk.h"

#include "Backend/core/installation/MirelUtils.h"
#include "Host/cli/script/ScriptCommands.h"
#include "Platform/Files.h"

#include <sstream>

namespace TestSupport {

namespace {

constexpr const char* KEY_PRESETS = "Computer Input Presets";

// Keeps the settings and presets of a desk that is about to start in a folder.
Host::Cli::ScriptPlayer::Options keepIn(const TemporaryFolder& folder, Host::Cli::ScriptPlayer::Options options) {
    Backend::MirelUtils::useDataFolder(folder.path());
    return options;
}

}

ScriptedDesk::ScriptedDesk(Host::Cli::ScriptPlayer::Options options) : m_desk(keepIn(m_folder, options)) {
    m_desk.start();
    m_desk.takeOutput();
}

std::string ScriptedDesk::run(const std::string& commands) {
    Host::Cli::ScriptReader reader(commands);
    while (const auto line = reader.nextCommand())
        if (!line->words.empty())
            Host::Cli::runScriptCommand(*line, reader, m_desk);
    return m_desk.takeOutput();
}

std::string ScriptedDesk::runAndPlay(const std::string& commands) {
    const auto slice = [this] {
        const std::string from = std::to_string(m_clock);
        return "slice " + from + " " + std::to_string(++m_clock) + "\n";
    };
    const std::string first = slice();
    std::istringstream lines(run(commands + "\n" + first + slice()));
    std::string text;
    for (std::string line; std::getline(lines, line);)
        text += (line.starts_with('@') ? line.substr(line.find(' ') + 1) : line) + "\n";
    return text;
}

void ScriptedDesk::writeKeyPreset(const std::string& name, const std::string& text) {
    EXPECT_TRUE(Platform::Files::createFolders(m_folder.file(KEY_PRESETS)));
    EXPECT_TRUE(Platform::Files::replace(keyPresetPath(name), text));
}

std::string ScriptedDesk::readKeyPreset(const std::string& name) const {
    std::string text = Platform::Files::read(keyPresetPath(name)).value_or("no such file");
    std::erase(text, '\r');
    return text;
}

std::string ScriptedDesk::keyPresetPath(const std::string& name) const {
    return Platform::Files::join(m_folder.file(KEY_PRESETS), name + ".pst");
}

}
