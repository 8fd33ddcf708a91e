// Any bytes as the keys of a program, and as the name of a key. Functions equal their copies and what is read back from
// their text. From the second time on, what was written reads back to the same text; the first time, a key may lose its
// name, and there is only one key without a name.
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
