// Any bytes as a desk script, on a desk of its own.
#include "Host/cli/ScriptCommands.h"
#include "Host/cli/ScriptError.h"

#include <string_view>

namespace {

// Commands whose numbers make them take as long as they say would only hold the fuzzer up.
bool isQuick(const Host::Cli::ScriptLine& line) {
    constexpr int MAX_SLICES = 100;
    if (line.words.front() != "run" || line.words.size() < 4)
        return true;
    const auto from = Host::Cli::parseNumber(line.words[1]);
    const auto to = Host::Cli::parseNumber(line.words[2]);
    const auto step = Host::Cli::parseNumber(line.words[3]);
    return !from || !to || !step || *step < 1 || (std::int64_t{*to} - *from) / *step <= MAX_SLICES;
}

}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    using namespace Host::Cli;
    const std::string text(reinterpret_cast<const char*>(data), size);
    ScriptDesk desk({true, true}, "");
    ScriptReader reader(text);
    try {
        while (const auto line = reader.nextCommand())
            if (!line->words.empty() && isQuick(*line))
                runScriptCommand(*line, reader, desk);
    } catch (const ScriptError&) {
        return 0;
    }
    return 0;
}
