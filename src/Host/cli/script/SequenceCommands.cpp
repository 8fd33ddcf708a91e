#include "Host/cli/script/SequenceCommands.h"

namespace Host::Cli {

using namespace Backend;

void runSequence(const ScriptContext& context) {
    const std::string action = context.arguments.takeWord("add, rename or delete");
    if (action != "add" && action != "rename" && action != "delete")
        context.arguments.fail("a sequence can be added, renamed or deleted, not \"" + action + "\"");
    const std::string name = context.arguments.takeWord("the sequence's name");
    const std::string text = action == "add"      ? context.arguments.takeWord("the sequence")
                             : action == "rename" ? context.arguments.takeWord("the new name")
                                                  : std::string();
    context.arguments.expectEnd();
    if (action == "add")
        context.desk.post([&](MirelIF& mirel) { mirel.getMessageManager().postAddSequencePreset(name, text); });
    else if (action == "rename")
        context.desk.run([&](Mirel& mirel) { mirel.getSequencePresets().editSequencePreset(name, text); });
    else
        context.desk.run([&](Mirel& mirel) { mirel.getSequencePresets().deleteSequencePreset(name); });
}

}
