#include "Host/cli/Command.h"

#include <cstdio>

namespace Host::Cli {

bool printHelp(const CommandUsage& usage, const Arguments& arguments) {
    if (arguments.size() != 1 || arguments.front() != "--help")
        return false;
    std::fputs(usage.text, stdout);
    return true;
}

void printUsageError(const CommandUsage& usage, const std::string& error) {
    if (!error.empty())
        std::fprintf(stderr, "mirel: %s%s", error.c_str(), usage.afterError ? usage.afterError : "\n");
    if (!usage.afterError)
        std::fputs(usage.text, stderr);
}

void printCommandError(const CommandError& error) {
    std::fflush(stdout);
    std::fprintf(stderr, "%s\n", error.what());
}

}
