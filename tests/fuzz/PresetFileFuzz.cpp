// Any bytes as the preset file of keys, controls and layers, which are saved and loaded again.
#include "tests/fuzz/DeskFiles.h"

#include <cstdlib>
#include <sstream>

namespace {

template <class Manager, class Write>
void checkPreset(Manager& manager, Write write) {
    const auto reload = [&] {
        manager.savePreset("saved", {});
        manager.loadPreset("saved");
        std::ostringstream text;
        write(manager, text);
        return text.str();
    };
    manager.loadPreset("fuzzed");
    reload();
    const std::string settled = reload();
    if (reload() != settled)
        std::abort();
}

}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    static DeskFiles desk;
    for (const char* folder : {"Computer Input Presets", "Control Presets", "Layer Presets"}) {
        Platform::Files::createFolders(desk.path(folder));
        desk.write(Platform::Files::join(folder, "fuzzed.pst"), data, size);
    }
    desk.run([](Backend::Mirel& mirel) {
        checkPreset(mirel.getComputerInput(),
                    [](auto& manager, std::ostream& text) { manager.writeXml(text, 0, {}, true); });
        checkPreset(mirel.getControls(), [](auto& manager, std::ostream& text) { manager.writeXml(text, 0, {}); });
        checkPreset(mirel.getLayers(), [](auto& manager, std::ostream& text) { manager.writeXml(text, 0, {}); });
    });
    return 0;
}
