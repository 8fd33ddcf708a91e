// Any bytes as the keys of a program, and as the name of a key. Functions equal their copies and what is read back of
// them. What was written is read back to the same text for good from the second time on: at first a key may become one
// without a name, and then there is but one of these.
#include "Backend/core/xml/XmlDocument.h"
#include "Backend/input/KeyConfigurationMap.h"
#include "tests/support/FakeHost.h"

#include <cstdlib>
#include <sstream>

namespace {

using Backend::ComputerInput::KeyConfiguration;
using Backend::ComputerInput::KeyConfigurationMap;

void require(bool condition) {
    if (!condition)
        std::abort();
}

KeyConfigurationMap readKeys(const std::string& xml, Backend::MirelIF& mirel) {
    KeyConfigurationMap keys;
    bool useKeyUpMod = false;
    keys.readXml(Backend::XmlDocument(xml, false).getRootElement(), mirel, useKeyUpMod);
    return keys;
}

std::string writeKeys(const KeyConfigurationMap& keys) {
    std::ostringstream stream;
    stream << "<ComputerInput>";
    keys.writeKeys(stream, 0, {});
    stream << "</ComputerInput>";
    return stream.str();
}

KeyConfiguration withoutFunctions(const KeyConfiguration& key) {
    KeyConfiguration bare(key.getKey());
    bare.setGlobal(key.isGlobal());
    return bare;
}

void checkKeys(KeyConfigurationMap& keys) {
    require(keys == KeyConfigurationMap(keys));
    for (const auto iterator = keys.createIterator(); iterator->hasNext();) {
        const KeyConfiguration& key = *iterator->next();
        require(keys.find(key.getKey()) == &key && key == KeyConfiguration(key));
        require(key.hasFunction() || key == withoutFunctions(key));
    }
    for (const Backend::Zones::Zone& range : keys.getZoneRanges())
        require(range.id >= 0 && range.lowNote.isNote() && range.lowNote.getNumber() <= range.highNote.getNumber());
}

void checkKeyName(const std::string& text) {
    const std::string written = Key(std::string_view(text)).toXmlString();
    const std::string again = Key(std::string_view(written)).toXmlString();
    require(Key(std::string_view(again)).toXmlString() == again);
}

}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    static TestSupport::FakeHost host;
    const std::string text(reinterpret_cast<const char*>(data), size);
    checkKeyName(text);
    KeyConfigurationMap keys = readKeys(text, host.mirel());
    checkKeys(keys);
    const std::string written = writeKeys(readKeys(writeKeys(keys), host.mirel()));
    require(writeKeys(readKeys(written, host.mirel())) == written);
    return 0;
}
