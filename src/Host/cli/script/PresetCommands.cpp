#include "Host/cli/script/PresetCommands.h"

#include "Backend/input/Key.h"

#include <vector>

namespace Host::Cli {

using namespace Backend;

namespace {

Key toId(const std::string& word, const ScriptArguments& arguments, const Key*) {
    Key key{std::string_view(word)};
    if (key.getCode() == Key::NO_KEY)
        arguments.fail("there is no key \"" + word + "\"");
    return key;
}

Cell toId(const std::string& word, const ScriptArguments& arguments, const Cell*) {
    Cell cell{std::string_view(word)};
    if (cell.getRow() < 0 || cell.getColumn() < 0)
        arguments.fail("a cell is ROW,COL, not \"" + word + "\"");
    return cell;
}

Layers::LayerId toId(const std::string& word, const ScriptArguments& arguments, const Layers::LayerId*) {
    return {arguments.toNumber(word, "a layer")};
}

template <class Id>
std::vector<Id> takeIds(ScriptArguments& arguments) {
    std::vector<Id> ids;
    while (arguments.hasMore())
        ids.push_back(toId(arguments.takeWord("an element"), arguments, static_cast<const Id*>(nullptr)));
    return ids;
}

// Posts the command to the message manager that getManager returns.
template <class Id, class GetManager>
void runOn(const ScriptContext& context, const std::string& action, GetManager getManager) {
    const std::string name = context.arguments.takeWord("the preset's name");
    if (action == "save") {
        const auto ids = takeIds<Id>(context.arguments);
        context.desk.post([&](MirelIF& mirel) { getManager(mirel).postSavePreset(name, ids); });
        return;
    }
    const std::string newName = action == "rename" ? context.arguments.takeWord("the new name") : std::string();
    context.arguments.expectEnd();
    context.desk.post([&](MirelIF& mirel) {
        if (action == "load")
            getManager(mirel).postLoadPreset(name);
        else if (action == "rename")
            getManager(mirel).postRenamePreset(name, newName);
        else
            getManager(mirel).postDeletePreset(name);
    });
}

}

void runPreset(const ScriptContext& context) {
    const std::string action = context.arguments.takeWord("load, save, rename or delete");
    if (action != "load" && action != "save" && action != "rename" && action != "delete")
        context.arguments.fail("a preset can be loaded, saved, renamed or deleted, not \"" + action + "\"");
    const std::string kind = context.arguments.takeWord("keys, controls or layers");
    if (kind == "keys")
        runOn<Key>(
            context, action, [](MirelIF & mirel) -> auto& { return mirel.getComputerInputMessageManager(); });
    else if (kind == "controls")
        runOn<Cell>(
            context, action, [](MirelIF & mirel) -> auto& { return mirel.getControlMessageManager(); });
    else if (kind == "layers")
        runOn<Layers::LayerId>(
            context, action, [](MirelIF & mirel) -> auto& { return mirel.getLayerMessageManager(); });
    else
        context.arguments.fail("a preset holds keys, controls or layers, not \"" + kind + "\"");
}

}
