// The text of an event: any text gives some event, whose own text reads back to itself.
#include "Backend/midi/MidiMessage.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    using Backend::MidiEngine::MidiMessage;
    const MidiMessage event(std::string(reinterpret_cast<const char*>(data), size));
    if (!event.isValid())
        return 0;
    const std::string text = event.toXmlString();
    if (MidiMessage(text).toXmlString() != text)
        std::abort();
    return 0;
}
