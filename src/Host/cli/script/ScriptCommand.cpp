#include "Host/cli/script/ScriptCommand.h"

#include "Backend/core/installation/MirelUtils.h"
#include "Host/cli/Command.h"
#include "Host/cli/InputFile.h"
#include "Host/cli/script/ScriptCommands.h"
#include "Host/cli/script/ScriptError.h"
#include "Platform/TemporaryFolder.h"

#include <cstdio>
#include <optional>

namespace Host::Cli {

namespace {

constexpr CommandUsage USAGE{"usage: mirel script [--show] [--updates] [--window] [--data DIR] [FILE]\n"};
constexpr const char* STANDARD_INPUT = "-";

struct ScriptOptions {
    ScriptPlayer::Options tell;
    std::string dataFolder;
    std::string file = STANDARD_INPUT;
};

// Nothing, and no error either, for arguments that make no sense: the usage says enough.
std::optional<ScriptOptions> parseOptions(const Arguments& arguments, std::string& /*error*/) {
    ScriptOptions options;
    bool hasFile = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (argument == "--show") {
            options.tell.show = true;
        } else if (argument == "--updates") {
            options.tell.updates = true;
        } else if (argument == "--window") {
            options.tell.window = true;
        } else if (argument == "--data" && i + 1 < arguments.size()) {
            options.dataFolder = arguments[++i];
        } else if (!hasFile && (argument == STANDARD_INPUT || !argument.starts_with('-'))) {
            options.file = argument;
            hasFile = true;
        } else {
            return std::nullopt;
        }
    }
    return options;
}

std::string readStandardInput() {
    std::string text;
    char buffer[65536];
    for (std::size_t count; (count = std::fread(buffer, 1, sizeof(buffer), stdin)) > 0;)
        text.append(buffer, count);
    return text;
}

void print(const std::string& text) {
    std::fwrite(text.data(), 1, text.size(), stdout);
}

std::string readScript(const std::string& file) {
    if (file == STANDARD_INPUT)
        return readStandardInput();
    std::string text;
    std::string error;
    if (!readInputFile(file, text, error))
        throw CommandError(file + ": " + error);
    return text;
}

ExitStatus play(const ScriptOptions& options) {
    const std::string text = readScript(options.file);
    std::optional<Platform::TemporaryFolder> ownFolder;
    if (options.dataFolder.empty())
        ownFolder.emplace();
    Backend::MirelUtils::useDataFolder(ownFolder ? ownFolder->getPath() : options.dataFolder);
    ScriptDesk desk(options.tell);
    ScriptReader reader(text);
    try {
        while (const auto line = reader.nextCommand()) {
            runScriptCommand(*line, reader, desk);
            print(desk.takeOutput());
        }
    } catch (const ScriptError& failure) {
        throw CommandError(options.file + ":" + std::to_string(failure.getLine()) + ": " + failure.what());
    }
    std::fflush(stdout);
    return DONE;
}

}

int runScript(const std::vector<std::string>& arguments) {
    return runWithOptions(USAGE, arguments, parseOptions, play);
}

}
