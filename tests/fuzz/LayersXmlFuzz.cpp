// Any bytes as a list of layers and of zones. What was written once reads back to the same text; only the first time
// may it change, because a limit that isn't a note is written empty and so read as none.
#include "Backend/core/xml/XmlDocument.h"
#include "Backend/midi/layers/LayerList.h"
#include "Backend/midi/layers/ZoneMap.h"
#include "Backend/midi/sequences/SequencePresetManager.h"

#include <cstdlib>
#include <sstream>

namespace {

using Backend::XmlDocument;

std::string writeLayers(const std::string& xml) {
    Backend::Layers::LayerList layers;
    layers.readXml(XmlDocument(xml, false).getRootElement(), Backend::SequenceManagement::SequencePresetManager(""));
    std::ostringstream stream;
    layers.writeXml(stream, 0, {});
    return stream.str();
}

std::string writeZones(const std::string& xml) {
    Backend::Zones::ZoneMap zones;
    zones.readXml(XmlDocument(xml, false).getRootElement());
    std::ostringstream stream;
    zones.writeXml(stream, 0, false);
    return stream.str();
}

}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const std::string xml(reinterpret_cast<const char*>(data), size);
    const std::string layers = writeLayers(writeLayers(xml));
    const std::string zones = writeZones(xml);
    if (writeLayers(layers) != layers || writeZones(zones) != zones)
        std::abort();
    return 0;
}
