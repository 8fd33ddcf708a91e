// Any bytes as a document, walked completely through the cursor.
#include "Backend/core/xml/XmlDocument.h"

namespace {

std::size_t walk(const Backend::XmlElement& element) {
    std::size_t read = element.getName().size() + element.getAttribute("a").size() +
                       static_cast<std::size_t>(element.getIntAttribute("a", 1) & 1) +
                       (element.getBoolAttribute("a", true) ? 1 : 0);
    for (auto child = element.begin(); child != element.end(); child.next())
        read += walk(child);
    return read;
}

}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const Backend::XmlDocument document(std::string(reinterpret_cast<const char*>(data), size), false);
    const auto root = document.getRootElement();
    return walk(root) + root.getText().size() == static_cast<std::size_t>(-1);
}
