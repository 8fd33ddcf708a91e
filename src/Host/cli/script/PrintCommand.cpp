#include "Host/cli/script/PrintCommand.h"

#include <algorithm>
#include <array>
#include <sstream>

namespace Host::Cli {

using namespace Backend;

namespace {

std::string describeProgram(Mirel& mirel) {
    std::string xml;
    mirel.getProgramXml(xml);
    return xml;
}

std::string describeBank(Mirel& mirel) {
    std::string text = mirel.getCurrentBank().getPath() + "\n";
    for (const std::string& name : mirel.getCurrentBank().getProgramNames())
        text += name + "\n";
    return text;
}

std::string describeLayers(Mirel& mirel) {
    std::ostringstream stream;
    mirel.getLayers().writeXml(stream, 0, {});
    return stream.str();
}

std::string describeZones(Mirel& mirel) {
    std::ostringstream stream;
    mirel.getZones().writeXml(stream, 0);
    return stream.str();
}

std::string describeKeys(Mirel& mirel) {
    std::ostringstream stream;
    mirel.getComputerInput().writeXml(stream, 0, {}, true);
    return stream.str();
}

std::string describeControls(Mirel& mirel) {
    std::ostringstream stream;
    mirel.getControls().writeXml(stream, 0, {});
    return stream.str();
}

std::string describeSettings(Mirel& mirel) {
    std::string text;
    for (const auto& [name, value] : mirel.getRegistrySettings().describe())
        text.append(name).append("=").append(value).append("\n");
    return text;
}

std::string describeTempo(Mirel& mirel) {
    return std::to_string(mirel.getTempo()) + " source=" + std::to_string(mirel.getTempoSource()) + "\n";
}

struct Part {
    const char* name;
    std::string (*describe)(Mirel&);
};

constexpr std::array<Part, 8> PARTS = {{
    {"program", describeProgram},
    {"bank", describeBank},
    {"layers", describeLayers},
    {"zones", describeZones},
    {"keys", describeKeys},
    {"controls", describeControls},
    {"settings", describeSettings},
    {"tempo", describeTempo},
}};

}

void runPrint(const ScriptContext& context) {
    const std::string what = context.arguments.takeWord("what to print");
    context.arguments.expectEnd();
    if (what == "log") {
        std::string log = context.desk.getLog();
        std::erase(log, '\r');
        context.desk.tell(log);
        return;
    }
    const auto part =
        std::find_if(PARTS.begin(), PARTS.end(), [&what](const Part& candidate) { return what == candidate.name; });
    if (part == PARTS.end())
        context.arguments.fail("there is no \"" + what + "\" to print");
    context.desk.print(part->describe);
}

}
