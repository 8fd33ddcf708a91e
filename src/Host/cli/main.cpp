// The desk without a window.
#include "Host/cli/ExitStatus.h"
#include "Host/cli/PortsCommand.h"
#include "Host/cli/check/CheckCommand.h"
#include "Host/cli/import/ImportCommand.h"
#include "Host/cli/render/RenderCommand.h"
#include "Host/cli/run/RunCommand.h"
#include "Host/cli/script/ScriptCommand.h"
#include "Platform/StandardStreams.h"

#include <array>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace {

struct Command {
    std::string_view name;
    int (*run)(const std::vector<std::string>& arguments);
    const char* help;
};

constexpr std::array COMMANDS = {
    Command{"check", Host::Cli::runCheck,
            "reports what the desk would ignore in programs, banks, presets and sequences"},
    Command{"import", Host::Cli::runImport, "converts a version 2 bank, program or preset"},
    Command{"ports", Host::Cli::runPorts, "lists the MIDI inputs and outputs"},
    Command{"render", Host::Cli::runRender, "plays a MIDI file through layers and zones into another MIDI file"},
    Command{"run", Host::Cli::runRun, "plays in real time on MIDI ports"},
    Command{"script", Host::Cli::runScript, "drives a desk from a text file and prints what it plays"},
};

void printHelp(std::FILE* stream) {
    std::fputs("usage: mirel COMMAND [ARGUMENTS]\n\n", stream);
    for (const Command& command : COMMANDS)
        std::fprintf(stream, "  %-8.*s %s\n", static_cast<int>(command.name.size()), command.name.data(), command.help);
}

}

int main(int argc, char** argv) {
    Platform::useBinaryStandardStreams();
    const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    if (arguments.empty()) {
        printHelp(stderr);
        return Host::Cli::FAILED;
    }
    const std::string& name = arguments.front();
    if (name == "--help" || name == "help") {
        printHelp(stdout);
        return Host::Cli::DONE;
    }
    for (const Command& command : COMMANDS)
        if (name == command.name)
            return command.run({arguments.begin() + 1, arguments.end()});
    std::fprintf(stderr, "mirel: unknown command \"%s\"; see mirel --help\n", name.c_str());
    return Host::Cli::FAILED;
}
