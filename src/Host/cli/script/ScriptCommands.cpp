#include "Host/cli/script/ScriptCommands.h"

#include "Backend/core/xml/XmlDocument.h"
#include "Backend/core/xml/XmlElement.h"
#include "Backend/midi/layers/ZoneMap.h"
#include "Host/cli/script/DeskCommands.h"
#include "Host/cli/script/ScriptContext.h"

#include <algorithm>
#include <array>

namespace Host::Cli {

using namespace Backend;
using MidiEngine::MidiMessage;
using MidiEngine::MirelMidiMessage;

namespace {

constexpr int MAX_PORTS = 65536;
constexpr std::int32_t BYTE_LOW = -128;
constexpr std::int32_t BYTE_HIGH = 127;

// The value of a word "name=value"; null if the word has another name.
const char* findValue(const std::string& word, std::string_view name) {
    if (word.size() <= name.size() || !word.starts_with(name) || word[name.size()] != '=')
        return nullptr;
    return word.c_str() + name.size() + 1;
}

std::vector<std::int32_t> splitNumbers(std::string_view text, const ScriptContext& context, const char* what) {
    std::vector<std::int32_t> numbers;
    while (true) {
        const auto comma = text.find(',');
        numbers.push_back(context.arguments.toNumber(text.substr(0, comma), what));
        if (comma == std::string_view::npos)
            return numbers;
        text.remove_prefix(comma + 1);
    }
}

void runInputs(const ScriptContext& context) {
    const int count = context.arguments.takeNumber("the number of inputs", 0, MAX_PORTS);
    context.arguments.expectEnd();
    context.desk.setInputs(count);
}

void runOutputs(const ScriptContext& context) {
    const int count = context.arguments.takeNumber("the number of outputs", 0, MAX_PORTS);
    std::vector<std::int32_t> off;
    if (context.arguments.hasMore()) {
        const std::string& word = context.arguments.takeWord("off=");
        const char* value = findValue(word, "off");
        if (!value)
            context.arguments.fail("unexpected \"" + word + "\" after outputs");
        off = splitNumbers(value, context, "an output that is off");
    }
    context.arguments.expectEnd();
    context.desk.setOutputs(count, off);
}

void runDefaultOutput(const ScriptContext& context) {
    const int output = context.arguments.takeNumber("the output", BYTE_LOW, BYTE_HIGH);
    context.arguments.expectEnd();
    context.desk.setDefaultOutput(output);
}

void runThru(const ScriptContext& context) {
    const std::string& state = context.arguments.takeWord("on or off");
    if (state != "on" && state != "off")
        context.arguments.fail("thru is on or off, not \"" + state + "\"");
    context.arguments.expectEnd();
    context.desk.setThru(state == "on");
}

void runLayers(const ScriptContext& context) {
    context.arguments.expectEnd();
    const XmlDocument document = context.readDocument(Layers::LayerList::TAG);
    Layers::LayerList layers;
    layers.readXml(document.getRootElement(), context.desk.getSequencePresets());
    context.desk.setLayers(layers);
}

void runZones(const ScriptContext& context) {
    context.arguments.expectEnd();
    const XmlDocument document = context.readDocument(Zones::ZoneMap::TAG);
    Zones::ZoneMap zones;
    zones.readXml(document.getRootElement());
    context.desk.setZones(zones);
}

void runZone(const ScriptContext& context) {
    const auto id = static_cast<char>(context.arguments.takeNumber("the zone", 0, BYTE_HIGH));
    const auto transpose = static_cast<char>(context.arguments.takeNumber("the transposition", BYTE_LOW, BYTE_HIGH));
    context.arguments.expectEnd();
    context.desk.setZone(id, transpose);
}

// What an event line may specify after its three numbers.
struct EventOptions {
    std::int32_t channel = MirelMidiMessage::DEFAULT_CHANNEL;
    std::int32_t output = MirelMidiMessage::DEFAULT_OUTPUT;
    std::int32_t zone = MirelMidiMessage::DEFAULT_ZONE;
    std::int32_t input = MirelMidiMessage::DEFAULT_INPUT;
    std::int32_t ppq = -1;
    Cell fromControl;
};

void readEventOption(const std::string& word, const ScriptContext& context, EventOptions& options) {
    struct NumberOption {
        const char* name;
        std::int32_t EventOptions::*target;
        std::int32_t lowest;
        std::int32_t highest;
    };
    static constexpr std::array<NumberOption, 5> NUMBER_OPTIONS = {{
        {"ch", &EventOptions::channel, -1, 15},
        {"out", &EventOptions::output, BYTE_LOW, BYTE_HIGH},
        {"zone", &EventOptions::zone, BYTE_LOW, BYTE_HIGH},
        {"in", &EventOptions::input, BYTE_LOW, BYTE_HIGH},
        {"ppq", &EventOptions::ppq, INT32_MIN, INT32_MAX},
    }};
    for (const NumberOption& option : NUMBER_OPTIONS) {
        if (const char* value = findValue(word, option.name)) {
            options.*option.target = context.arguments.toNumber(value, option.name, option.lowest, option.highest);
            return;
        }
    }
    const char* from = findValue(word, "from");
    if (!from)
        context.arguments.fail("unexpected \"" + word + "\" in an event");
    const auto cell = splitNumbers(from, context, "from");
    if (cell.size() != 2)
        context.arguments.fail("from is ROW,COL, not \"" + std::string(from) + "\"");
    options.fromControl = Cell(cell[0], cell[1]);
}

void runEvent(const ScriptContext& context) {
    const auto status = context.arguments.takeNumber("the status", 0x80, 0xff);
    const auto d1 = static_cast<char>(context.arguments.takeNumber("the first data byte", 0, 255));
    const auto d2 = static_cast<char>(context.arguments.takeNumber("the second data byte", 0, 255));
    EventOptions options;
    while (context.arguments.hasMore())
        readEventOption(context.arguments.takeWord("an option"), context, options);

    MirelMidiMessage event(static_cast<MidiMessage::MessageType>(status), d1, d2,
                           {.output = static_cast<char>(options.output),
                            .channel = static_cast<char>(options.channel),
                            .zone = static_cast<char>(options.zone)},
                           {.input = static_cast<char>(options.input), .ppq = options.ppq});
    event.setFromControl(options.fromControl);
    context.desk.postEvent(event);
}

void runSolo(const ScriptContext& context) {
    std::vector<std::int32_t> layers;
    while (context.arguments.hasMore())
        layers.push_back(context.arguments.takeNumber("a layer"));
    context.desk.setSolo(layers);
}

void runSlice(const ScriptContext& context) {
    const std::int32_t from = context.arguments.takeNumber("the start of the slice");
    const std::int32_t to = context.arguments.takeNumber("the end of the slice");
    context.arguments.expectEnd();
    context.desk.playSlice(from, to);
}

void runSlices(const ScriptContext& context) {
    const std::int64_t from = context.arguments.takeNumber("the start of the run");
    const std::int64_t to = context.arguments.takeNumber("the end of the run");
    const std::int64_t step = context.arguments.takeNumber("the length of a slice", 1);
    context.arguments.expectEnd();
    for (std::int64_t start = from; start < to; start += step)
        context.desk.playSlice(static_cast<std::int32_t>(start), static_cast<std::int32_t>(std::min(start + step, to)));
}

void runReset(const ScriptContext& context) {
    context.arguments.expectEnd();
    context.desk.reset();
}

void runHardReset(const ScriptContext& context) {
    context.arguments.expectEnd();
    context.desk.hardReset();
}

constexpr std::array<ScriptCommandRow, 13> COMMANDS = {{
    {"inputs", runInputs},
    {"outputs", runOutputs},
    {"default-output", runDefaultOutput},
    {"thru", runThru},
    {"layers", runLayers},
    {"zones", runZones},
    {"zone", runZone},
    {"event", runEvent},
    {"solo", runSolo},
    {"slice", runSlice},
    {"run", runSlices},
    {"reset", runReset},
    {"hard-reset", runHardReset},
}};

}

void runScriptCommand(const ScriptLine& line, ScriptReader& reader, ScriptDesk& desk) {
    ScriptArguments arguments(line);
    const std::string& name = line.words.front();
    const ScriptContext context{arguments, line, reader, desk};
    const auto command = std::find_if(COMMANDS.begin(), COMMANDS.end(),
                                      [&name](const ScriptCommandRow& candidate) { return name == candidate.name; });
    if (command != COMMANDS.end())
        command->run(context);
    else if (!runDeskCommand(name, context))
        arguments.fail("unknown command \"" + name + "\"");
}

}
