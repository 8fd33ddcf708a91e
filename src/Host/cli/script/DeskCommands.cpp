#include "Host/cli/script/DeskCommands.h"

#include "Backend/core/xml/XmlElement.h"
#include "Backend/functions/FunctionFactory.h"
#include "Backend/functions/values/RelativeFixedValue.h"
#include "Backend/functions/values/SelectType.h"
#include "Backend/input/Key.h"
#include "Host/cli/script/PresetCommands.h"
#include "Host/cli/script/PrintCommand.h"
#include "Host/cli/script/SequenceCommands.h"
#include "Host/common/desk/InputEvent.h"

#include <algorithm>
#include <array>
#include <vector>

namespace Host::Cli {

using namespace Backend;
using MidiEngine::MidiMessage;
using MidiEngine::MirelMidiMessage;

namespace {

constexpr std::int32_t BYTE_LOW = -128;
constexpr std::int32_t BYTE_HIGH = 127;
constexpr std::int32_t DEFAULT_CHANNEL = -1;

Cell takeCell(ScriptArguments& arguments) {
    const std::string& word = arguments.takeWord("a cell ROW,COL");
    const auto comma = word.find(',');
    if (comma == std::string::npos)
        arguments.fail("a cell is ROW,COL, not \"" + word + "\"");
    const std::int32_t row = arguments.toNumber(std::string_view(word).substr(0, comma), "the row");
    return Cell(row, arguments.toNumber(std::string_view(word).substr(comma + 1), "the column"));
}

std::string takeOnlyWord(const ScriptContext& context, const char* what) {
    std::string word = context.arguments.takeWord(what);
    context.arguments.expectEnd();
    return word;
}

std::int32_t takeOnlyNumber(const ScriptContext& context, const char* what, std::int32_t lowest = INT32_MIN,
                            std::int32_t highest = INT32_MAX) {
    const std::int32_t number = context.arguments.takeNumber(what, lowest, highest);
    context.arguments.expectEnd();
    return number;
}

void runDesk(const ScriptContext& context) {
    context.arguments.expectEnd();
    context.desk.start();
}

void runKey(const ScriptContext& context) {
    const std::string direction = context.arguments.takeWord("down or up");
    if (direction != "down" && direction != "up")
        context.arguments.fail("a key goes down or up, not \"" + direction + "\"");
    const std::string id = context.arguments.takeWord("a key");
    const Key key{std::string_view(id)};
    if (key.getCode() == Key::NO_KEY && !id.empty())
        context.arguments.fail("there is no key \"" + id + "\"");
    bool isRepeat = false;
    if (direction == "down" && context.arguments.hasMore()) {
        const std::string& word = context.arguments.takeWord("repeat");
        if (word != "repeat")
            context.arguments.fail("unexpected \"" + word + "\" after a key");
        isRepeat = true;
    }
    context.arguments.expectEnd();
    context.desk.post([&](MirelIF& mirel) {
        if (direction == "down")
            mirel.getMessageManager().postKeyDown(key, isRepeat);
        else
            mirel.getMessageManager().postKeyUp(key);
    });
}

void runFunction(const ScriptContext& context) {
    context.arguments.expectEnd();
    const XmlDocument document = context.readDocument();
    bool isFunction = false;
    context.desk.run([&](Mirel& mirel) {
        const auto function = FunctionManagement::createFunction(document.getRootElement(), mirel);
        isFunction = function != nullptr;
        if (function)
            function->execute();
    });
    if (!isFunction)
        context.arguments.fail("the block is not a function");
}

void runControl(const ScriptContext& context) {
    Controls::ControlChange change;
    change.cell = takeCell(context.arguments);
    change.value = takeOnlyNumber(context, "the value");
    context.desk.post([&](MirelIF& mirel) { mirel.getControlMessageManager().postChangeControl(change); });
}

void runSelectControls(const ScriptContext& context) {
    std::vector<Cell> cells;
    while (context.arguments.hasMore())
        cells.push_back(takeCell(context.arguments));
    context.desk.post([&](MirelIF& mirel) { mirel.getControlMessageManager().postSelectControls(cells); });
}

void runSelectLayers(const ScriptContext& context) {
    std::vector<Layers::LayerId> ids;
    while (context.arguments.hasMore())
        ids.push_back({context.arguments.takeNumber("a layer")});
    context.desk.post([&](MirelIF& mirel) { mirel.getLayerMessageManager().postSelectLayers(ids); });
}

void runSelectZones(const ScriptContext& context) {
    std::vector<Zones::ZoneId> ids;
    while (context.arguments.hasMore())
        ids.push_back(static_cast<Zones::ZoneId>(context.arguments.takeNumber("a zone", BYTE_LOW, BYTE_HIGH)));
    context.desk.post([&](MirelIF& mirel) { mirel.getZoneMessageManager().postSelectZones(ids); });
}

void runSendControls(const ScriptContext& context) {
    context.arguments.expectEnd();
    context.desk.post([](MirelIF& mirel) { mirel.getControlMessageManager().postSendAll(false); });
}

void runBank(const ScriptContext& context) {
    const std::string path = takeOnlyWord(context, "the bank's path");
    context.desk.post([&](MirelIF& mirel) { mirel.getMessageManager().postLoadBank(path); });
}

void runProgram(const ScriptContext& context) {
    const std::string path = takeOnlyWord(context, "the program's path");
    context.desk.post([&](MirelIF& mirel) { mirel.getMessageManager().postLoadProgram(path); });
}

void runSelect(const ScriptContext& context) {
    const std::string word = context.arguments.takeWord("next, previous or a number");
    const SelectType type = word == "next" ? SelectType(SelectType::UP)
                            : word == "previous"
                                ? SelectType(SelectType::DOWN)
                                : SelectType(SelectType::SPECIFIC, context.arguments.toNumber(word, "the program"));
    context.arguments.expectEnd();
    context.desk.post([&](MirelIF& mirel) { mirel.getMessageManager().postChangeProgram(type); });
}

void runSave(const ScriptContext& context) {
    const std::int32_t index = takeOnlyNumber(context, "the program's index");
    context.desk.post([&](MirelIF& mirel) { mirel.getMessageManager().postSaveToCurrentBank(index, nullptr); });
}

void runSaveBank(const ScriptContext& context) {
    const std::string path = takeOnlyWord(context, "the bank's path");
    context.desk.post([&](MirelIF& mirel) { mirel.getMessageManager().postSaveToBank(path, nullptr); });
}

void runSaveProgram(const ScriptContext& context) {
    const std::string path = takeOnlyWord(context, "the program's path");
    context.desk.post([&](MirelIF& mirel) { mirel.getMessageManager().postSaveToProgram(path, nullptr); });
}

void runBankSize(const ScriptContext& context) {
    const std::int32_t size = takeOnlyNumber(context, "the number of programs");
    context.desk.post([&](MirelIF& mirel) { mirel.getMessageManager().postChangeBankSize(size, nullptr); });
}

void runProgramName(const ScriptContext& context) {
    const std::string name = takeOnlyWord(context, "the name");
    context.desk.post([&](MirelIF& mirel) { mirel.getMessageManager().postChangeProgramName(name); });
}

void runImport(const ScriptContext& context) {
    const std::string kind = context.arguments.takeWord("bank, program or preset");
    const std::string from = context.arguments.takeWord("the version 2 file");
    const std::string to = takeOnlyWord(context, "where to");
    if (kind != "bank" && kind != "program" && kind != "preset")
        context.arguments.fail("a bank, program or preset can be imported, not a \"" + kind + "\"");
    context.desk.post([&](MirelIF& mirel) {
        MirelMessageManager& manager = mirel.getMessageManager();
        if (kind == "bank")
            manager.postImportVersion2Bank(from, to, nullptr);
        else if (kind == "program")
            manager.postImportVersion2Program(from, to, nullptr);
        else
            manager.postImportVersion2Preset(from, to, nullptr);
    });
}

void runTempo(const ScriptContext& context) {
    const std::string text = takeOnlyWord(context, "the tempo");
    const RelativeFixedValue tempo{std::string_view(text)};
    context.desk.post([&](MirelIF& mirel) { mirel.getMessageManager().postChangeTempo(tempo, true); });
}

void runTempoSource(const ScriptContext& context) {
    const auto source = static_cast<char>(takeOnlyNumber(context, "the input", BYTE_LOW, BYTE_HIGH));
    context.desk.post([&](MirelIF& mirel) { mirel.getMessageManager().postSetTempoSource(source, true); });
}

void runOutput(const ScriptContext& context) {
    const SelectType type(SelectType::SPECIFIC, takeOnlyNumber(context, "the output"));
    context.desk.post([&](MirelIF& mirel) { mirel.getMessageManager().postChangeDefaultMidiOutput(type); });
}

void runMidiIn(const ScriptContext& context) {
    const auto port = static_cast<char>(context.arguments.takeNumber("the input", BYTE_LOW, BYTE_HIGH));
    const auto status = context.arguments.takeNumber("the status", 0x80, 0xff);
    const auto d1 = static_cast<char>(context.arguments.takeNumber("the first data byte", 0, BYTE_HIGH));
    const auto d2 = static_cast<char>(context.arguments.takeNumber("the second data byte", 0, BYTE_HIGH));
    std::int32_t channel = DEFAULT_CHANNEL;
    if (context.arguments.hasMore()) {
        const std::string& word = context.arguments.takeWord("ch=");
        if (!word.starts_with("ch="))
            context.arguments.fail("unexpected \"" + word + "\" in an event");
        channel = context.arguments.toNumber(std::string_view(word).substr(3), "ch", -1, 15);
    }
    context.arguments.expectEnd();
    const MirelMidiMessage event =
        makeInputEvent(static_cast<MidiMessage::MessageType>(status), d1, d2, static_cast<char>(channel), port);
    context.desk.post([&](MirelIF& mirel) { receiveInputEvent(mirel, event); });
}

constexpr std::array<ScriptCommandRow, 24> COMMANDS = {{
    {"desk", runDesk},
    {"key", runKey},
    {"function", runFunction},
    {"control", runControl},
    {"select-controls", runSelectControls},
    {"select-layers", runSelectLayers},
    {"select-zones", runSelectZones},
    {"send-controls", runSendControls},
    {"bank", runBank},
    {"program", runProgram},
    {"select", runSelect},
    {"save", runSave},
    {"save-bank", runSaveBank},
    {"save-program", runSaveProgram},
    {"bank-size", runBankSize},
    {"program-name", runProgramName},
    {"preset", runPreset},
    {"sequence", runSequence},
    {"import", runImport},
    {"tempo", runTempo},
    {"tempo-source", runTempoSource},
    {"output", runOutput},
    {"midi-in", runMidiIn},
    {"print", runPrint},
}};

}

bool runDeskCommand(const std::string& name, const ScriptContext& context) {
    const auto command = std::find_if(COMMANDS.begin(), COMMANDS.end(),
                                      [&name](const ScriptCommandRow& row) { return name == row.name; });
    if (command == COMMANDS.end())
        return false;
    command->run(context);
    return true;
}

}
