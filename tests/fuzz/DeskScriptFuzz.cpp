// Any bytes as a desk script, on a desk of its own, in a folder that nothing leaves.
#include "Backend/core/installation/MirelUtils.h"
#include "Host/cli/script/ScriptArguments.h"
#include "Host/cli/script/ScriptCommands.h"
#include "Host/cli/script/ScriptError.h"
#include "Platform/TemporaryFolder.h"

#include <algorithm>
#include <filesystem>
#include <string_view>

namespace {

// Commands that take as long as their numbers say would only slow the fuzzer down.
bool isQuick(const Host::Cli::ScriptLine& line) {
    constexpr int MAX_SLICES = 100;
    if (line.words.front() != "run" || line.words.size() < 4)
        return true;
    const auto from = Host::Cli::parseNumber(line.words[1]);
    const auto to = Host::Cli::parseNumber(line.words[2]);
    const auto step = Host::Cli::parseNumber(line.words[3]);
    return !from || !to || !step || *step < 1 || (std::int64_t{*to} - *from) / *step <= MAX_SLICES;
}

// Whether it stays in this folder.
bool isHarmless(const Host::Cli::ScriptLine& line) {
    return std::none_of(line.words.begin(), line.words.end(),
                        [](const std::string& word) { return word.find('/') != std::string::npos; });
}

}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    using namespace Host::Cli;
    static const Platform::TemporaryFolder folder;
    Backend::MirelUtils::useDataFolder(folder.getPath());
    std::filesystem::current_path(folder.getPath());  // Files are named without a folder.
    const std::string text(reinterpret_cast<const char*>(data), size);
    ScriptDesk desk({true, true, true});
    ScriptReader reader(text);
    try {
        while (const auto line = reader.nextCommand())
            if (!line->words.empty() && isQuick(*line) && isHarmless(*line))
                runScriptCommand(*line, reader, desk);
    } catch (const ScriptError&) {
        return 0;
    }
    return 0;
}
