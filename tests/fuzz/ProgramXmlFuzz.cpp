// Any bytes as a program. What was written twice reads back to the same text, and a bank that it is saved into keeps
// its other programs.
#include "Backend/core/files/BankFile.h"
#include "Backend/core/xml/XmlDocument.h"
#include "Backend/core/xml/XmlElement.h"
#include "tests/fuzz/DeskFiles.h"

#include <cstdlib>

namespace {

std::string load(DeskFiles& desk, const std::string& xml) {
    std::string text;
    desk.run([&](Backend::Mirel& mirel) {
        mirel.loadProgramFromXml(xml, 0);
        mirel.getProgramXml(text);
    });
    return text;
}

bool isBankWhole(const std::string& programXml) {
    const std::size_t start = programXml.find("<Program ");
    const std::size_t end = programXml.rfind("</MirelProgramFile>");
    const std::string bank = Backend::BankFile::replaceProgram(
        "<Bank>\n<Program name=\"a\">\n</Program>\n<Program name=\"b\">\n</Program>\n<Program name=\"c\">\n"
        "</Program>\n</Bank>\n",
        1, programXml.substr(start, end - start));
    const Backend::XmlDocument document(bank, false);
    std::string names;
    int count = 0;
    const auto root = document.getRootElement();
    for (auto child = root.begin(); child != root.end(); child.next(), ++count)
        if (count != 1)
            names += child.getAttribute("name");
    return count == 3 && names == "ac";
}

}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    static DeskFiles desk;
    const std::string settled = load(desk, load(desk, std::string(reinterpret_cast<const char*>(data), size)));
    if (load(desk, settled) != settled || !isBankWhole(settled))
        std::abort();
    return 0;
}
