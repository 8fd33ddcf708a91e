// Any bytes as a version 2 bank, program and preset of each kind. The result can be read.
#include "Backend/core/version2/Version2Import.h"
#include "Backend/core/xml/XmlDocument.h"
#include "Backend/core/xml/XmlElement.h"
#include "tests/fuzz/DeskFiles.h"

#include <cstdlib>

namespace {

constexpr const char* PRESETS[] = {"key", "control", "layer"};

void expectRoot(const std::string& path, const std::string& tag) {
    if (Backend::XmlDocument(path, true).getRootElement().getName() != tag)
        std::abort();
}

}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    static DeskFiles desk;
    desk.write("old", data, size);
    for (const char* kind : PRESETS)
        desk.write(kind, data, size);
    desk.run([](Backend::Mirel& mirel) {
        Backend::Version2Import import(mirel, mirel.getSequencePresets());
        import.importBank(desk.path("old"), desk.path("new.bnk"));
        import.importProgram(desk.path("old"), desk.path("new.prg"));
        for (const char* kind : PRESETS)
            import.importPreset(desk.path(kind), "new");
    });
    expectRoot(desk.path("new.bnk"), "Bank");
    expectRoot(desk.path("new.prg"), "ProgramFile");
    expectRoot(desk.path("Computer Input Presets/new.pst"), "ComputerInput");
    expectRoot(desk.path("Control Presets/new.pst"), "Controls");
    expectRoot(desk.path("Layer Presets/new.pst"), "Layers");
    return 0;
}
