#include "Host/cli/script/ScriptCommand.h"

#include "Backend/core/installation/MirelUtils.h"
#include "Host/cli/ExitStatus.h"
#include "Host/cli/InputFile.h"
#include "Host/cli/script/ScriptCommands.h"
#include "Host/cli/script/ScriptError.h"
#include "Platform/TemporaryFolder.h"

#include <cstdio>
#include <optional>

namespace Host::Cli {

namespace {

constexpr const char* USAGE = "usage: mirel script [--show] [--updates] [--window] [--data DIR] [FILE]\n";
constexpr const char* STANDARD_INPUT = "-";

struct ScriptOptions {
    ScriptPlayer::Options tell;
    std::string dataFolder;
    std::string file = STANDARD_INPUT;
};

std::optional<ScriptOptions> parseOptions(const std::vector<std::string>& arguments) {
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

}

int runScript(const std::vector<std::string>& arguments) {
    if (arguments.size() == 1 && arguments.front() == "--help") {
        std::fputs(USAGE, stdout);
        return DONE;
    }
    const auto options = parseOptions(arguments);
    if (!options) {
        std::fputs(USAGE, stderr);
        return FAILED;
    }
    std::string text;
    std::string error;
    if (options->file == STANDARD_INPUT) {
        text = readStandardInput();
    } else if (!readInputFile(options->file, text, error)) {
        std::fprintf(stderr, "%s: %s\n", options->file.c_str(), error.c_str());
        return FAILED;
    }

    std::optional<Platform::TemporaryFolder> ownFolder;
    if (options->dataFolder.empty())
        ownFolder.emplace();
    Backend::MirelUtils::useDataFolder(ownFolder ? ownFolder->getPath() : options->dataFolder);
    ScriptDesk desk(options->tell);
    ScriptReader reader(text);
    try {
        while (const auto line = reader.nextCommand()) {
            runScriptCommand(*line, reader, desk);
            print(desk.takeOutput());
        }
    } catch (const ScriptError& failure) {
        std::fflush(stdout);
        std::fprintf(stderr, "%s:%d: %s\n", options->file.c_str(), failure.getLine(), failure.what());
        return FAILED;
    }
    std::fflush(stdout);
    return DONE;
}

}
