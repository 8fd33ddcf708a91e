#include "Host/cli/import/ImportCommand.h"

#include "Host/cli/Command.h"
#include "Host/cli/InputFile.h"
#include "Host/cli/import/Version2Conversion.h"
#include "Platform/Files.h"

#include <cstdio>
#include <optional>

namespace Host::Cli {

namespace {

constexpr CommandUsage USAGE{R"(usage: mirel import bank|program|preset FROM TO [--data DIR]

Converts a version 2 file into the file TO and writes nothing else. The name of a version 2 preset must begin with
the word key, control or layer, which gives its kind. The keys of a version 2 file are added to those of the preset
"000 - Default" in DIR or, without DIR or such a preset, to the built-in keys.
)"};

struct ImportOptions {
    Version2Kind kind = Version2Kind::BANK;
    std::string from;
    std::string to;
    std::string dataFolder;
};

// Nothing, with one line in error, for arguments that make no sense.
std::optional<ImportOptions> parseOptions(const Arguments& arguments, std::string& error) {
    ImportOptions options;
    std::vector<std::string> words;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (argument == "--data" && i + 1 < arguments.size() && !arguments[i + 1].empty())
            options.dataFolder = arguments[++i];
        else if (argument == "--data")
            error = "--data takes a folder";
        else if (argument.starts_with("--"))
            error = "unknown option " + argument;
        else
            words.push_back(argument);
    }
    if (!error.empty())
        return std::nullopt;
    const auto kind = words.empty() ? std::nullopt : findVersion2Kind(words.front());
    if (words.size() != 3 || !kind) {
        error = "import takes bank, program or preset, and two files";
        return std::nullopt;
    }
    options.kind = *kind;
    options.from = words[1];
    options.to = words[2];
    return options;
}

ExitStatus import(const ImportOptions& options) {
    std::string content;
    std::string error;
    if (!readInputFile(options.from, content, error))
        throw CommandError(options.from + ": " + error);
    std::string result;
    error = convertVersion2(options.kind, options.from, content, options.dataFolder, result);
    if (!error.empty())
        throw CommandError(options.from + ": " + error);
    if (!Platform::Files::replace(options.to, result))
        throw CommandError(options.to + ": can't be written");
    std::printf("wrote %s\n", options.to.c_str());
    return DONE;
}

}

int runImport(const std::vector<std::string>& arguments) {
    return runWithOptions(USAGE, arguments, parseOptions, import);
}

}
