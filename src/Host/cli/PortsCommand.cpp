#include "Host/cli/PortsCommand.h"

#include "Backend/core/installation/MirelUtils.h"
#include "Host/cli/Command.h"
#include "Host/common/ports/MidiSystem.h"
#include "Host/common/ports/PortFiles.h"
#include "Host/common/ports/Recorder.h"

#include <cstdio>
#include <optional>

namespace Host::Cli {

namespace {

constexpr CommandUsage USAGE{R"(usage: mirel ports [--data DIR]

Lists the MIDI inputs and outputs with their numbers, including remembered ones that are absent now, for the user's
own desk or for the one whose data is in DIR.
)"};

struct PortsOptions {
    std::string dataFolder;  // Empty: the user's own.
};

// Nothing, with one line in error, for arguments that make no sense.
std::optional<PortsOptions> parseOptions(const Arguments& arguments, std::string& error) {
    if (arguments.empty())
        return PortsOptions{};
    if (arguments.size() == 2 && arguments.front() == "--data" && !arguments.back().empty())
        return PortsOptions{.dataFolder = arguments.back()};
    error = "ports takes only --data DIR";
    return std::nullopt;
}

void printList(const char* title, const PortList& list) {
    std::printf("%s:\n", title);
    if (list.rows().empty())
        std::printf("  none\n");
    for (std::size_t i = 0; i < list.rows().size(); ++i) {
        const PortRow& row = list.rows()[i];
        std::string name = row.id.name;
        if (row.id.copy > 1)
            name += " (" + std::to_string(row.id.copy) + ")";
        std::printf("%3zu  %-9s  %-8s  %s\n", i + 1, row.available ? "available" : "absent",
                    row.settings.enabled ? "enabled" : "disabled", name.c_str());
    }
}

// Lists the rows that this folder's desk would have now.
ExitStatus list(const PortsOptions& options) {
    const std::string dataFolder =
        options.dataFolder.empty() ? Backend::MirelUtils::getMirelAppDataDir() : options.dataFolder;
    const auto system = createMidiSystem("Mirel");
    MidiPortIds ids = system->list();
    const bool hasPorts = !ids.inputs.empty() || !ids.outputs.empty();
    ids.outputs.push_back({Recorder::NAME, PortList::BUILT_IN});
    PortList inputs = readPortFile(dataFolder, INPUTS_FILE);
    PortList outputs = readPortFile(dataFolder, OUTPUTS_FILE);
    outputs.update({ids.outputs.back()});  // The desk has it before it has scanned the system.
    inputs.update(ids.inputs);
    outputs.update(ids.outputs);
    std::printf("MIDI system: %s\n", system->name().c_str());
    printList("inputs", inputs);
    printList("outputs", outputs);
    if (!hasPorts)
        std::printf("This computer has no MIDI port now; the %s keeps what is played in memory.\n", Recorder::NAME);
    return DONE;
}

}

int runPorts(const std::vector<std::string>& arguments) {
    return runWithOptions(USAGE, arguments, parseOptions, list);
}

}
