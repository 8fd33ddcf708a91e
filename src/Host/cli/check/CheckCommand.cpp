#include "Host/cli/check/CheckCommand.h"

#include "Host/cli/Command.h"
#include "Host/cli/InputFile.h"
#include "Host/cli/check/FileCheck.h"

#include <algorithm>
#include <cstdio>
#include <optional>

namespace Host::Cli {

namespace {

constexpr CommandUsage USAGE{R"(usage: mirel check [--data DIR] FILE...

Reports what the desk would ignore in programs, banks, presets and sequences, or replace by a default, as lines
of the form FILE:LINE: what. It prints nothing for a good file. Presets that a file refers to are looked up in
DIR or, without --data, beside the file, in the folder above it and in the user's own data; in each of these also
in its folder Default.

exit status: 0 no complaints, 1 complaints, 2 a file can't be read or isn't one of the desk's
)"};

struct CheckOptions {
    std::string dataFolder;
    std::vector<std::string> files;
};

// Nothing, with one line in error, for arguments that make no sense.
std::optional<CheckOptions> parseOptions(const Arguments& arguments, std::string& error) {
    CheckOptions options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (argument == "--data" && i + 1 < arguments.size() && !arguments[i + 1].empty())
            options.dataFolder = arguments[++i];
        else if (argument == "--data")
            error = "--data takes a folder";
        else if (argument.starts_with("--"))
            error = "unknown option " + argument;
        else
            options.files.push_back(argument);
    }
    if (options.files.empty() && error.empty())
        error = "check takes files";
    if (!error.empty())
        return std::nullopt;
    return options;
}

ExitStatus fail(const std::string& file, const std::string& error) {
    std::fflush(stdout);
    std::fprintf(stderr, "%s: %s\n", file.c_str(), error.c_str());
    return FAILED;
}

ExitStatus checkFile(const std::string& file, const std::string& dataFolder) {
    std::string content;
    std::string error;
    if (!readInputFile(file, content, error))
        return fail(file, error);
    PresetFiles presets(file, dataFolder);
    FileCheck check(content, presets);
    error = check.run();
    if (!error.empty())
        return fail(file, error);
    for (const Complaint& complaint : check.getComplaints())
        std::printf("%s:%d: %s\n", file.c_str(), complaint.line, complaint.text.c_str());
    return check.getComplaints().empty() ? DONE : COMPLAINED;
}

ExitStatus check(const CheckOptions& options) {
    ExitStatus status = DONE;
    for (const std::string& file : options.files)
        status = std::max(status, checkFile(file, options.dataFolder));
    return status;
}

}

int runCheck(const std::vector<std::string>& arguments) {
    return runWithOptions(USAGE, arguments, parseOptions, check);
}

}
